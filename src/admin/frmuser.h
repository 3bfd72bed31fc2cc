#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmUser;
}

// Adds or edits one user account. The caller sets userID (0 for a new
// account) before showing it; after a save it holds the account's key.
class frmUser : public ModalScreen {
    Q_OBJECT

public:
    explicit frmUser(QWidget *parent = nullptr);
    ~frmUser() override;

    qint32 userID = 0;

protected:
    void load() override;

private:
    void loadUser();
    void applyAdminRule();
    void updateOkButton();
    void saveUser();

    std::unique_ptr<Ui::frmUser> ui;
};
