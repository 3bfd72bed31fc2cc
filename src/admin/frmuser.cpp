#include "admin/frmuser.h"
#include "ui_frmUser.h"

#include "admin/systemuser.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/encryption.h"

namespace {

qint16 flagOf(const QCheckBox *box) {
    return box->isChecked() ? 1 : 0;
}

} // namespace

frmUser::frmUser(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmUser>()) {
    ui->setupUi(this);

    for (QLineEdit *text : {ui->txtUsername, ui->txtPassword, ui->txtConfirm})
        connect(text, &QLineEdit::textChanged, this, &frmUser::updateOkButton);
    for (QCheckBox *box : {ui->canEdit, ui->canDelete, ui->canVoid, ui->canRunReports, ui->status})
        connect(box, &QCheckBox::clicked, this, &frmUser::updateOkButton);
    connect(ui->isAdmin, &QCheckBox::clicked, this, &frmUser::applyAdminRule);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmUser::saveUser);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmUser::reject);

    updateOkButton();
}

frmUser::~frmUser() = default;

void frmUser::load() {
    runCommand(tr("An error has occured:  "), [this] { loadUser(); });
    ui->txtUsername->setFocus();
}

void frmUser::loadUser() {
    SystemUser user;
    if (!user.GetUser(QString(), QString(), userID))
        return;
    ui->txtUsername->setText(user.username);
    ui->canEdit->setChecked(user.canEdit == 1);
    ui->canDelete->setChecked(user.canDelete == 1);
    ui->canVoid->setChecked(user.canVoid == 1);
    ui->isAdmin->setChecked(user.isAdmin == 1);
    ui->status->setChecked(user.status == 1);
    ui->canRunReports->setChecked(user.canRunReports == 1);
    if (ui->isAdmin->isChecked())
        applyAdminRule();
}

// An administrator holds every right but reports, which may still be denied
// by hand; taking the admin tick away takes all four rights with it.
void frmUser::applyAdminRule() {
    const bool admin = ui->isAdmin->isChecked();
    for (QCheckBox *right : {ui->canEdit, ui->canDelete, ui->canVoid, ui->canRunReports})
        right->setChecked(admin);
    for (QCheckBox *right : {ui->canEdit, ui->canDelete, ui->canVoid})
        right->setEnabled(!admin);
}

void frmUser::updateOkButton() {
    ui->cmdOK->setEnabled(!ui->txtUsername->text().isEmpty());
}

void frmUser::saveUser() {
    if (ui->txtPassword->text() != ui->txtConfirm->text()) {
        dialogs().message(tr("Passwords do not match.  Please try again."), tr("Password Check"),
                          Dialogs::Icon::Critical);
        return;
    }
    runCommand(tr("An error has occured:  "), [this] {
        SystemUser user;
        user.userID = userID;
        user.username = ui->txtUsername->text();
        user.password = Utility::EncryptString(ui->txtPassword->text(),
                                               QString::fromUtf16(Utility::kPasswordKey));
        user.canEdit = flagOf(ui->canEdit);
        user.canVoid = flagOf(ui->canVoid);
        user.canDelete = flagOf(ui->canDelete);
        user.isAdmin = flagOf(ui->isAdmin);
        user.status = flagOf(ui->status);
        user.canRunReports = flagOf(ui->canRunReports);
        user.WriteUser();
        userID = user.userID;
        accept();
    });
}
