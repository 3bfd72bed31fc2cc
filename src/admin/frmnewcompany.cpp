#include "admin/frmnewcompany.h"
#include "ui_frmNewCompany.h"

#include "admin/companysetup.h"
#include "admin/frmmultiuser.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "catalogue/paymenttypelist.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/encryption.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"

using namespace Qt::Literals::StringLiterals;

frmNewCompany::frmNewCompany(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmNewCompany>()) {
    ui->setupUi(this);
    ui->optReceipt1->setChecked(true);
    ui->optSecurity0->setChecked(true);
    chooseSecurity();

    connect(ui->TabStrip1, &QTabWidget::currentChanged, this, &frmNewCompany::showPage);
    connect(ui->cmdNext0, &QPushButton::clicked, this, [this] { showPage(CompanyPage); });
    connect(ui->cmdNext1, &QPushButton::clicked, this, [this] { showPage(DefaultsPage); });
    connect(ui->cmdBack1, &QPushButton::clicked, this, [this] { showPage(WelcomePage); });
    connect(ui->cmdBack2, &QPushButton::clicked, this, [this] { showPage(CompanyPage); });
    connect(ui->cmdNext2, &QPushButton::clicked, this, &frmNewCompany::finish);
    for (QPushButton *cancel : {ui->cmdCancel0, ui->cmdCancel1, ui->cmdCancel2})
        connect(cancel, &QPushButton::clicked, this, &frmNewCompany::cancelWizard);
    connect(ui->cmdShard, &QPushButton::clicked, this, &frmNewCompany::useSharedDatabase);
    for (QRadioButton *option : {ui->optSecurity0, ui->optSecurity1})
        connect(option, &QRadioButton::clicked, this, &frmNewCompany::chooseSecurity);
}

frmNewCompany::~frmNewCompany() = default;

void frmNewCompany::load() {
    runCommand(tr("An error has occured "), [this] {
        CompanySetup::loadStates(ui->txtState);
        Catalogue::loadPaymentTypes(ui->lstPaymentType, company().defaultPaymentType);
    });
    ui->txtState->setCurrentIndex(0);
    showPage(WelcomePage);
}

// Selecting a tab, by a click on it or by Next and Back, shows its page.
void frmNewCompany::showPage(int page) {
    ui->TabStrip1->setCurrentIndex(page);
    QWidget *focus = page == WelcomePage   ? static_cast<QWidget *>(ui->cmdNext0)
                     : page == CompanyPage ? static_cast<QWidget *>(ui->txtName)
                                           : static_cast<QWidget *>(ui->lstPaymentType);
    focus->setFocus();
}

void frmNewCompany::useSharedDatabase() {
    frmMultiUser multiUser(this);
    multiUser.fromWizard = true;
    multiUser.exec();
}

void frmNewCompany::chooseSecurity() {
    const bool restricted = ui->optSecurity1->isChecked();
    ui->txtUsername->setEnabled(restricted);
    ui->txtPassword->setEnabled(restricted);
    if (restricted)
        ui->txtUsername->setFocus();
}

void frmNewCompany::reject() {
    cancelWizard();
}

// The wizard comes back at the next start: nothing marks it as done.
void frmNewCompany::cancelWizard() {
    if (dialogs().message(tr("You must complete this process to use Brisko.  Are you sure you "
                             "want to cancel this process?  "),
                          tr("Abort Wizard"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNo) != Dialogs::Answer::Yes)
        return;
    done(QDialog::Rejected);
    processControl().endProgram();
}

// A failure after the company row is written leaves it written; the wizard
// comes back at the next start and writes it again.
void frmNewCompany::finish() {
    if (!finishChecksPass())
        return;
    runCommand(tr("An error has occured "), [this] {
        copyToCompany();
        writeSystemRow();
        if (ui->optSecurity1->isChecked())
            createAdministrator();
        Utility::RegSetString(SettingsKey::firstRun, u"no"_s);
        accept();
    });
}

bool frmNewCompany::finishChecksPass() {
    if (!CompanySetup::taxRateIsValid(ui->txtTax->text())) {
        selectPage(DefaultsPage, ui->txtTax);
        return false;
    }
    if (ui->txtName->text().isEmpty()) {
        dialogs().message(tr("Please enter the name of your company."), tr("Missing Company Name"),
                          Dialogs::Icon::Exclamation);
        selectPage(CompanyPage, ui->txtName);
        return false;
    }
    if (ui->optSecurity1->isChecked() &&
        (ui->txtUsername->text().isEmpty() || ui->txtPassword->text().isEmpty())) {
        dialogs().message(tr("Please enter a default username and password for the "
                             "administrator."),
                          tr("Missing Admin Username/Password"), Dialogs::Icon::Exclamation);
        selectPage(DefaultsPage, ui->txtUsername);
        return false;
    }
    return true;
}

void frmNewCompany::selectPage(int page, QWidget *focus) {
    showPage(page);
    focus->setFocus();
}

void frmNewCompany::copyToCompany() {
    CompanySetup::copySharedFields(*ui);
}

// The number format is the one the record holds: the wizard has no field for it.
void frmNewCompany::writeSystemRow() const {
    const Company &c = company();
    db::execute(u"UPDATE tblSystem SET companyName = ?, address1 = ?, address2 = ?, city = ?, "
                u"state = ?, zip = ?, phone = ?, numberFormat = ?, defaultPaymentType = ?, "
                u"defaultReceiptType = ?, taxRate = ?, restrictAccess = ?"_s,
                {c.companyName, c.address1, c.address2, c.city, c.state, c.zip, c.phone,
                 c.numberFormat, c.defaultPaymentType, c.defaultReceiptType, c.taxRate,
                 c.restrictAccess});
}

// Every right but reports, which the account dialog can grant later.
void frmNewCompany::createAdministrator() {
    SystemUser admin;
    admin.username = ui->txtUsername->text();
    admin.password =
        Utility::EncryptString(ui->txtPassword->text(), QString::fromUtf16(Utility::kPasswordKey));
    admin.canDelete = 1;
    admin.canEdit = 1;
    admin.canVoid = 1;
    admin.isAdmin = 1;
    admin.status = 1;
    admin.WriteUser();
    dialogs().message(tr("The default user account has been created.  You will need to log into "
                         "Brisko with this account where you can set up additional user "
                         "accounts."),
                      tr("Admin Account Created"), Dialogs::Icon::Information);
}
