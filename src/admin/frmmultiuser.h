#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmMultiUser;
}

// Chooses between the stand-alone database and one shared by several
// machines, can copy the stand-alone file to the share, and restarts the
// program on the chosen file. Also removes a receipt-number lock left behind
// on the share.
class frmMultiUser : public ModalScreen {
    Q_OBJECT

public:
    explicit frmMultiUser(QWidget *parent = nullptr);
    ~frmMultiUser() override;

    // Set by the first-run wizard: only a shared database can be chosen.
    bool fromWizard = false;

protected:
    void load() override;

private:
    void chooseStandAlone();
    void chooseShared();
    void enableSharedControls(bool enabled);
    void updateOkButton();
    void browse();
    void removeLock();
    void confirm();

    // The steps of OK.
    bool checkSharedFolder(const QString &folder); // false when the screen stays open
    void copyToShare(const QString &folder, const QString &target);
    void saveAndRestart(bool useShared, const QString &location);

    std::unique_ptr<Ui::frmMultiUser> ui;
};
