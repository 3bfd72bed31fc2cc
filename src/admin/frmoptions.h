#pragma once

#include "app/modalscreen.h"

#include <memory>

class QLineEdit;

namespace Ui {
class frmOptions;
}

// The one place where a running program changes the company's settings:
// seven tabs, saved all at once, after which the program restarts so that
// every setting takes effect everywhere. The logo and the user accounts
// change at once, without a save.
class frmOptions : public ModalScreen {
    Q_OBJECT

public:
    explicit frmOptions(QWidget *parent = nullptr);
    ~frmOptions() override;

protected:
    void load() override;

private:
    void connectChangeTracking();
    void fillFields();
    void fillEmailTab();
    void loadCurrencySymbols();
    void chooseCurrency();
    void loadUsers();
    void updateSaveState();
    void chooseAuthentication();
    void enableAuthenticationFields(bool enabled);
    void chooseSecurity();

    // Saving, in its order.
    void saveOptions();
    bool numberFormatIsValid();
    bool securityIsValid();
    void copyToCompany();
    void writeSystemRow() const;
    void saveMailSettings() const;
    void showTab(int index, QWidget *focus = nullptr);

    // The logo.
    void browseForLogo();
    void importLogo();
    void clearLogo();
    void showLogo();

    // The accounts.
    void addUser();
    void editUser();
    void deleteSelectedUser();
    qint32 selectedUserID() const;

    void openMailHelp();
    bool eventFilter(QObject *watched, QEvent *event) override;

    std::unique_ptr<Ui::frmOptions> ui;
    bool hasAdminUser = false; // set by loadUsers, never cleared
};
