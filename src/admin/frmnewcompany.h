#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmNewCompany;
}

// The first-run wizard: three pages that give a new installation its
// company, its defaults and, if logins are wanted, a first administrator.
// It closes accepted when it has finished; a confirmed cancel ends the program.
class frmNewCompany : public ModalScreen {
    Q_OBJECT

public:
    explicit frmNewCompany(QWidget *parent = nullptr);
    ~frmNewCompany() override;

    // Escape and the window's close ask as Cancel does.
    void reject() override;

protected:
    void load() override;

private:
    enum Page { WelcomePage, CompanyPage, DefaultsPage };

    void showPage(int page);
    void useSharedDatabase();
    void chooseSecurity();
    void cancelWizard();
    void finish();
    bool finishChecksPass();
    void copyToCompany();
    void writeSystemRow() const;
    void createAdministrator();
    void selectPage(int page, QWidget *focus);

    std::unique_ptr<Ui::frmNewCompany> ui;
};
