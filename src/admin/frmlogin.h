#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmLogin;
}

// Asks for a user name and password when access is restricted. On a good
// login the session's currentUser is set and the dialog accepts; closing it
// leaves currentUser empty. There is no limit on tries.
class frmLogin : public ModalScreen {
    Q_OBJECT

public:
    explicit frmLogin(QWidget *parent = nullptr);
    ~frmLogin() override;

private:
    void doLogin();

    std::unique_ptr<Ui::frmLogin> ui;
};
