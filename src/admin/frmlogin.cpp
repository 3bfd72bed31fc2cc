#include "admin/frmlogin.h"
#include "ui_frmLogin.h"

#include "admin/systemuser.h"
#include "app/briskoerror.h"
#include "app/session.h"
#include "platform/dialogs.h"
#include "platform/encryption.h"
#include "version.h"

#include <QKeyEvent>
#include <QScreen>

frmLogin::frmLogin(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::frmLogin>()) {
    ui->setupUi(this);
    ui->lblVersion->setText(
        tr("Version %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
    // Enter in the password box logs in; it is caught before the dialog can
    // pass it on to a default button as well.
    ui->txtPassword->installEventFilter(this);
    connect(ui->cmdLogin, &QPushButton::clicked, this, &frmLogin::doLogin);
    ui->txtUsername->setFocus();
}

frmLogin::~frmLogin() = default;

void frmLogin::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    move(screen()->availableGeometry().center() - rect().center());
}

bool frmLogin::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->txtPassword && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            doLogin();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmLogin::doLogin() {
    try {
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
    } catch (const BriskoError &error) {
        dialogs().message(tr("An error has occured: ") + error.description(), tr("Error"),
                          Dialogs::Icon::Critical);
    }
}
