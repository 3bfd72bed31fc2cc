#include "admin/frmlogin.h"
#include "ui_frmLogin.h"

#include "admin/systemuser.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/encryption.h"
#include "version.h"

frmLogin::frmLogin(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmLogin>()) {
    ui->setupUi(this);
    ui->lblVersion->setText(
        tr("Version %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
    // Enter in the name goes on to the password, and Enter there logs in:
    // the dialog has no default button to pass it on to as well.
    connect(ui->txtUsername, &QLineEdit::returnPressed, ui->txtPassword,
            qOverload<>(&QWidget::setFocus));
    connect(ui->txtPassword, &QLineEdit::returnPressed, this, &frmLogin::doLogin);
    connect(ui->cmdLogin, &QPushButton::clicked, this, &frmLogin::doLogin);
    ui->txtUsername->setFocus();
}

frmLogin::~frmLogin() = default;

void frmLogin::doLogin() {
    runCommand(tr("An error has occured: "), [this] {
        auto user = std::make_shared<SystemUser>();
        const QString password = Utility::EncryptString(ui->txtPassword->text(),
                                                        QString::fromUtf16(Utility::kPasswordKey));
        if (!user->GetUser(ui->txtUsername->text(), password, 0)) {
            dialogs().message(tr("Invalid username/password"), tr("Invalid Login"),
                              Dialogs::Icon::Exclamation);
            return;
        }
        if (user->status != 1) {
            dialogs().message(tr("User account is not active.  Please contact your administrator."),
                              tr("Inactive Account"), Dialogs::Icon::Exclamation);
            return;
        }
        session().currentUser = std::move(user);
        accept();
    });
}
