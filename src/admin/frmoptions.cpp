#include "admin/frmoptions.h"
#include "ui_frmOptions.h"

#include "admin/companysetup.h"
#include "admin/frmuser.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "catalogue/paymenttypelist.h"
#include "output/mailsettings.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/trim.h"
#include "website.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QPixmap>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Tab { CompanyTab, ReceiptTab, DefaultsTab, LogoTab, CustomFieldsTab, SecurityTab, EmailTab };

// The entries of the currency list: the code a save stores and the code that
// selects the entry on loading. The UK pound is stored as 163 but recognised
// as 164, so a saved pound comes back as the dollar; files in use hold both
// codes, and the pair stays as it is.
struct CurrencyEntry {
    const char *name;
    char16_t symbol; // 0 for none
    qint16 stored;
    qint16 recognised;
};
constexpr CurrencyEntry kCurrencies[] = {
    {QT_TRANSLATE_NOOP("frmOptions", "No symbol"), 0, 0, 0},
    {QT_TRANSLATE_NOOP("frmOptions", "Euro "), u'\u20AC', 128, 128},
    {QT_TRANSLATE_NOOP("frmOptions", "Japan "), u'\u00A5', 165, 165},
    {QT_TRANSLATE_NOOP("frmOptions", "USA "), u'$', 36, 36},
    {QT_TRANSLATE_NOOP("frmOptions", "UK Pound "), u'\u00A3', 163, 164},
    {QT_TRANSLATE_NOOP("frmOptions", "Custom"), 0, -1, -1},
};
constexpr int kUsaEntry = 3;    // also every code the list does not know
constexpr int kCustomEntry = 5; // the symbol typed in txtSymbol

int currencyEntryOf(qint16 code) {
    for (int entry = 0; entry < std::ssize(kCurrencies); ++entry) {
        if (kCurrencies[entry].recognised == code)
            return entry;
    }
    return kUsaEntry;
}

// What is wrong with a receipt number format, as the save tells it. Only the
// first pair of brackets is looked at, and only the first character in it.
enum class FormatFault { None, Empty, NoPlaceholder, Brackets };

FormatFault numberFormatFault(const QString &format) {
    if (format.isEmpty())
        return FormatFault::Empty;
    if (!format.contains(u'0'))
        return FormatFault::NoPlaceholder;
    const qsizetype open = format.indexOf(u'[');
    const qsizetype close = open < 0 ? -1 : format.indexOf(u']', open);
    if (close < 0)
        return FormatFault::Brackets;
    const QString placeholders = format.mid(open + 1, close - open - 1);
    if (placeholders.isEmpty() || placeholders.front() != u'0')
        return FormatFault::Brackets;
    return FormatFault::None;
}

int flag(bool value) {
    return value ? 1 : 0;
}

} // namespace

frmOptions::frmOptions(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmOptions>()) {
    ui->setupUi(this);
    ui->optSecurity0->setChecked(true);
    for (QLineEdit *text : {ui->txtName, ui->txtAddress, ui->txtAddress2, ui->txtCity, ui->txtZip,
                            ui->txtPhone, ui->txtNumberFormat, ui->txtTax})
        Utility::selectAllOnFocus(text);
    ui->lstUsers->header()->setStretchLastSection(true);
    ui->lstUsers->setColumnWidth(0, 220);
    ui->lstUsers->installEventFilter(this);

    ui->ID_SaveChanges->setShortcut(QKeySequence::Save);
    connect(ui->ID_SaveChanges, &QAction::triggered, this, &frmOptions::saveOptions);
    connect(ui->ID_Close, &QAction::triggered, this, &QDialog::reject);
    connect(ui->lstCurrencySymbol, &QComboBox::currentIndexChanged, this,
            &frmOptions::chooseCurrency);
    connect(ui->useAuth, &QCheckBox::clicked, this, &frmOptions::chooseAuthentication);
    for (QRadioButton *option : {ui->optSecurity0, ui->optSecurity1})
        connect(option, &QRadioButton::clicked, this, &frmOptions::chooseSecurity);
    connect(ui->logoPath, &QLineEdit::textChanged, this,
            [this](const QString &path) { ui->cmdImport->setEnabled(!path.isEmpty()); });
    connect(ui->cmdBrowse, &QPushButton::clicked, this, &frmOptions::browseForLogo);
    connect(ui->cmdImport, &QPushButton::clicked, this, &frmOptions::importLogo);
    connect(ui->removeLogo, &QPushButton::clicked, this, &frmOptions::clearLogo);
    connect(ui->cmdAddUser, &QPushButton::clicked, this, &frmOptions::addUser);
    connect(ui->lstUsers, &QTreeWidget::itemDoubleClicked, this, &frmOptions::editUser);
    connect(ui->cmdDeleteUser, &QPushButton::clicked, this, &frmOptions::deleteSelectedUser);
    connect(ui->Label26, &QLabel::linkActivated, this, &frmOptions::openMailHelp);
    connectChangeTracking();
}

frmOptions::~frmOptions() = default;

// Every change of a setting decides anew whether Save is open. The logo's
// path is no setting: the import acts at once.
void frmOptions::connectChangeTracking() {
    for (QLineEdit *text : findChildren<QLineEdit *>()) {
        if (text != ui->logoPath && !qobject_cast<QComboBox *>(text->parentWidget()))
            connect(text, &QLineEdit::textChanged, this, &frmOptions::updateSaveState);
    }
    for (QAbstractButton *box : findChildren<QAbstractButton *>()) {
        if (qobject_cast<QCheckBox *>(box) || qobject_cast<QRadioButton *>(box))
            connect(box, &QAbstractButton::toggled, this, &frmOptions::updateSaveState);
    }
    for (QComboBox *list : findChildren<QComboBox *>())
        connect(list, &QComboBox::currentIndexChanged, this, &frmOptions::updateSaveState);
    connect(ui->txtState, &QComboBox::editTextChanged, this, &frmOptions::updateSaveState);
}

void frmOptions::load() {
    runCommand(tr("An error has occured:  "), [this] {
        CompanySetup::loadStates(ui->txtState);
        loadCurrencySymbols();
        Catalogue::loadPaymentTypes(ui->lstPaymentType, company().defaultPaymentType);
        loadUsers();
        fillFields();
        fillEmailTab();
    });
    // The security tab is the administrators' once logins are on.
    if (company().restrictAccess) {
        ui->optSecurity1->setChecked(true);
        const auto &user = session().currentUser;
        ui->SSTab1->setTabEnabled(SecurityTab, user && user->isAdmin == 1);
    } else {
        ui->lstUsers->setEnabled(false);
        ui->cmdAddUser->setEnabled(false);
    }
    ui->Label8->setText(tr("Syntax:\nmm = Month\ndd = Day\nyy = Year(2), yyyy = Year (4)\n"
                           "0 = digit placeholder, place within []\n"));
    showLogo();
    ui->ID_SaveChanges->setEnabled(false);
}

void frmOptions::fillFields() {
    const Company &c = company();
    ui->txtName->setText(c.companyName);
    ui->txtAddress->setText(c.address1);
    ui->txtAddress2->setText(c.address2);
    ui->txtCity->setText(c.city);
    ui->txtZip->setText(c.zip);
    ui->txtPhone->setText(c.phone);
    ui->txtNumberFormat->setText(c.numberFormat);
    CompanySetup::showState(ui->txtState, c.state);
    ui->txtTagline->setText(c.tagline);
    const QList<QLineEdit *> customFields = {ui->txtCustom1, ui->txtCustom2, ui->txtCustom3,
                                             ui->txtCustom4, ui->txtCustom5, ui->txtCustom6};
    const QStringList labels = {c.customField1, c.customField2, c.customField3,
                                c.customField4, c.customField5, c.customField6};
    for (int field = 0; field < customFields.size(); ++field)
        customFields[field]->setText(labels[field]);

    ui->chkResetNumbering->setChecked(c.resetNumberEOY);
    ui->chkRequireAddress->setChecked(c.requireAddress);
    ui->hideTax->setChecked(c.hideSalesTax);
    ui->chkHideAcctBalance->setChecked(c.hideAcctBalance);
    ui->chkUseAutoComplete->setChecked(c.useAutoComplete);
    ui->chkHideDiscount->setChecked(c.hideDiscountField);
    ui->chkTaxExtempt->setChecked(c.isTaxExempt);
    ui->posPrinter->setChecked(c.usePOSPrinter);
    ui->txtOtherFieldName->setText(c.otherFieldName);

    if (c.defaultReceiptType == 0)
        ui->optReceipt0->setChecked(true);
    else if (c.defaultReceiptType == 1)
        ui->optReceipt1->setChecked(true);
    ui->txtTax->setText(Runtime::defaultText(c.taxRate));
}

// The stored port shows as a plain number, a 0 included.
void frmOptions::fillEmailTab() {
    const MailSettings mail = MailSettings::stored();
    ui->mailServer->setText(mail.mailServer);
    ui->mailUsername->setText(mail.mailUsername);
    ui->mailPassword->setText(mail.mailPassword);
    ui->email->setText(mail.mailFrom);
    ui->useTLS->setChecked(mail.useTLS);
    const bool authenticates = !mail.mailUsername.isEmpty();
    ui->useAuth->setChecked(authenticates);
    enableAuthenticationFields(authenticates);
    ui->mailPort->setText(QString::number(mail.mailPort));
}

void frmOptions::loadCurrencySymbols() {
    ui->lstCurrencySymbol->clear();
    for (const CurrencyEntry &entry : kCurrencies) {
        QString text = tr(entry.name);
        if (entry.symbol)
            text += QChar(entry.symbol);
        ui->lstCurrencySymbol->addItem(text);
    }
    ui->txtSymbol->clear();
    ui->txtSymbol->setEnabled(false);
    const int entry = currencyEntryOf(company().currencySymbol);
    if (entry == kCustomEntry)
        ui->txtSymbol->setText(company().customCurrency);
    ui->lstCurrencySymbol->setCurrentIndex(entry);
    chooseCurrency();
}

// The typed symbol is kept when another entry is chosen; a save stores it too.
void frmOptions::chooseCurrency() {
    ui->txtSymbol->setEnabled(ui->lstCurrencySymbol->currentIndex() == kCustomEntry);
    updateSaveState();
}

void frmOptions::loadUsers() {
    const db::Snapshot users = SystemUser().GetUsers();
    ui->lstUsers->clear();
    for (const db::Row &row : users) {
        const bool admin = row.int16(u"isAdmin"_s) == 1;
        auto *item = new QTreeWidgetItem(
            ui->lstUsers, {row.text(u"username"_s), admin ? tr("Admin") : tr("User")});
        item->setData(0, Qt::UserRole, row.int32(u"userID"_s));
        hasAdminUser = hasAdminUser || admin;
    }
    updateSaveState();
}

void frmOptions::updateSaveState() {
    bool enabled = true;
    if (ui->txtName->text().isEmpty() || ui->txtNumberFormat->text().isEmpty())
        enabled = false;
    if (ui->lstCurrencySymbol->currentIndex() == kCustomEntry && ui->txtSymbol->text().isEmpty())
        enabled = false;
    if (ui->mailServer->text().isEmpty() && !ui->email->text().isEmpty())
        enabled = false;
    ui->ID_SaveChanges->setEnabled(enabled);
}

void frmOptions::chooseAuthentication() {
    const bool authenticates = ui->useAuth->isChecked();
    if (!authenticates) {
        ui->mailUsername->clear();
        ui->mailPassword->clear();
    }
    enableAuthenticationFields(authenticates);
    updateSaveState();
}

void frmOptions::enableAuthenticationFields(bool enabled) {
    for (QWidget *control : std::initializer_list<QWidget *>{ui->mailUsername, ui->mailPassword,
                                                             ui->Label22, ui->Label23})
        control->setEnabled(enabled);
}

// The delete button keeps its state: it works on the list whatever is chosen.
void frmOptions::chooseSecurity() {
    const bool restricted = ui->optSecurity1->isChecked();
    ui->lstUsers->setEnabled(restricted);
    ui->cmdAddUser->setEnabled(restricted);
    updateSaveState();
}

// Validates every tab, writes the company row, the first-run mark and the
// mail settings, and restarts. A failure after the row is written leaves it
// written and the program running on the new values.
void frmOptions::saveOptions() {
    runCommand(tr("An error has occured:  "), [this] {
        if (!CompanySetup::taxRateIsValid(ui->txtTax->text())) {
            showTab(DefaultsTab);
            return;
        }
        ui->txtNumberFormat->setText(ui->txtNumberFormat->text().toLower());
        if (!numberFormatIsValid() || !securityIsValid())
            return;
        copyToCompany();
        writeSystemRow();
        Utility::RegSetString(SettingsKey::firstRun, u"no"_s);
        saveMailSettings();
        dialogs().message(tr("Options have been changed.  Brisko Desk will now restart."),
                          tr("Multi-User"), Dialogs::Icon::Exclamation);
        accept();
        processControl().restart();
    });
}

bool frmOptions::numberFormatIsValid() {
    switch (numberFormatFault(ui->txtNumberFormat->text())) {
    case FormatFault::None:
        return true;
    case FormatFault::Empty:
        dialogs().message(tr("Receipt Number Format is a required field."), tr("Error"),
                          Dialogs::Icon::Exclamation);
        showTab(ReceiptTab, ui->txtNumberFormat);
        return false;
    case FormatFault::NoPlaceholder:
        dialogs().message(tr("Invalid receipt number format.  The format must contain at least "
                             "one digit placeholder within brackets.  \nExample:  yy-[00]"),
                          tr("Error"), Dialogs::Icon::Critical);
        showTab(ReceiptTab, ui->txtNumberFormat);
        return false;
    case FormatFault::Brackets:
        dialogs().message(tr("Digit placeholders are not properly formatted.  Digit placeholders "
                             "must begin with a left bracket and close with a right bracket.  "
                             "Only 0s are permitted within the brackets."),
                          tr("Error"), Dialogs::Icon::Critical);
        ui->txtNumberFormat->setFocus();
        return false;
    }
    return false;
}

// Logins need an administrator. One deleted while the screen is open still
// counts, as long as any account is left.
bool frmOptions::securityIsValid() {
    if (!ui->optSecurity1->isChecked() || (ui->lstUsers->topLevelItemCount() > 0 && hasAdminUser))
        return true;
    dialogs().message(tr("You must create at least one Admin user because you have chosen to "
                         "restrict system access."),
                      tr("No Users Found"), Dialogs::Icon::Critical);
    showTab(SecurityTab, ui->lstUsers);
    return false;
}

void frmOptions::copyToCompany() {
    CompanySetup::copySharedFields(*ui);
    Company &c = company();
    c.requireAddress = ui->chkRequireAddress->isChecked();
    c.resetNumberEOY = ui->chkResetNumbering->isChecked();
    c.hideSalesTax = ui->hideTax->isChecked();
    c.hideAcctBalance = ui->chkHideAcctBalance->isChecked();
    c.useAutoComplete = ui->chkUseAutoComplete->isChecked();
    c.hideDiscountField = ui->chkHideDiscount->isChecked();
    c.isTaxExempt = ui->chkTaxExtempt->isChecked();
    c.usePOSPrinter = ui->posPrinter->isChecked();
    c.otherFieldName = ui->txtOtherFieldName->text();
    c.numberFormat = Utility::Trim(ui->txtNumberFormat->text()).toLower();
    c.tagline = ui->txtTagline->text();
    c.currencySymbol = kCurrencies[ui->lstCurrencySymbol->currentIndex()].stored;
    c.customField1 = ui->txtCustom1->text();
    c.customField2 = ui->txtCustom2->text();
    c.customField3 = ui->txtCustom3->text();
    c.customField4 = ui->txtCustom4->text();
    c.customField5 = ui->txtCustom5->text();
    c.customField6 = ui->txtCustom6->text();
    c.customCurrency = ui->txtSymbol->text();
}

void frmOptions::writeSystemRow() const {
    const Company &c = company();
    db::execute(u"UPDATE tblSystem SET companyName = ?, address1 = ?, address2 = ?, city = ?, "
                u"state = ?, zip = ?, phone = ?, numberFormat = ?, defaultPaymentType = ?, "
                u"defaultReceiptType = ?, taxRate = ?, tagline = ?, currencySymbol = ?, "
                u"customField1 = ?, customField2 = ?, customField3 = ?, customField4 = ?, "
                u"customField5 = ?, customField6 = ?, customCurrency = ?, resetNumberEOY = ?, "
                u"requireAddress = ?, restrictAccess = ?, hideSalesTax = ?, hideAcctBalance = ?, "
                u"useAutoComplete = ?, hideDiscountField = ?, isTaxExempt = ?, "
                u"otherFieldName = ?, usePOSPrinter = ?"_s,
                {c.companyName,
                 c.address1,
                 c.address2,
                 c.city,
                 c.state,
                 c.zip,
                 c.phone,
                 c.numberFormat,
                 c.defaultPaymentType,
                 c.defaultReceiptType,
                 c.taxRate,
                 c.tagline,
                 c.currencySymbol,
                 c.customField1,
                 c.customField2,
                 c.customField3,
                 c.customField4,
                 c.customField5,
                 c.customField6,
                 c.customCurrency,
                 flag(c.resetNumberEOY),
                 flag(c.requireAddress),
                 flag(c.restrictAccess),
                 flag(c.hideSalesTax),
                 flag(c.hideAcctBalance),
                 flag(c.useAutoComplete),
                 flag(c.hideDiscountField),
                 flag(c.isTaxExempt),
                 c.otherFieldName,
                 flag(c.usePOSPrinter)});
}

// The port is read first, so that one that is no 16-bit number keeps every
// mail setting as it was.
void frmOptions::saveMailSettings() const {
    MailSettings mail;
    mail.mailServer = ui->mailServer->text();
    if (ui->useAuth->isChecked()) {
        mail.mailUsername = ui->mailUsername->text();
        mail.mailPassword = ui->mailPassword->text();
    }
    mail.useTLS = ui->useTLS->isChecked();
    const QString port = ui->mailPort->text();
    mail.mailPort = port.isEmpty() ? 0 : Runtime::toInt16(port);
    mail.mailFrom = ui->email->text();
    mail.store();
}

void frmOptions::showTab(int index, QWidget *focus) {
    ui->SSTab1->setCurrentIndex(index);
    if (focus)
        focus->setFocus();
}

// A cancelled chooser changes nothing and says nothing.
void frmOptions::browseForLogo() {
    const QString chosen = dialogs().openFile({.title = tr("Browse for Images"),
                                               .folder = Paths::dataFolder(),
                                               .fileName = QString(),
                                               .filter = tr("Image Files (*.jpg)")});
    if (!chosen.isEmpty())
        ui->logoPath->setText(chosen);
}

// Only the name is tested for ".jpg", anywhere in it; what the file holds
// is the owner's business.
void frmOptions::importLogo() {
    const QString source = ui->logoPath->text();
    if (!source.toLower().contains(u".jpg"_s)) {
        dialogs().message(tr("Only .jpg files can be used.  Please select a different file."),
                          tr("Invalid File"), Dialogs::Icon::Exclamation);
        return;
    }
    if (dialogs().message(tr("This will remove your current logo.  Do you want to proceed?"),
                          tr("Confirm Replace"), Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    runCommand(tr("An error has occured:  "), [&] {
        if (!QFile::exists(source))
            throw BriskoError(53, tr("File not found"));
        QDir().mkpath(Paths::dataFolder());
        // Copied beside the logo first, so that a failed copy keeps the old one.
        const QString target = Paths::logoPath();
        const QString copy = target + u".new"_s;
        QFile::remove(copy);
        if (!QFile::copy(source, copy))
            throw BriskoError(70, tr("Permission denied"));
        QFile::remove(target);
        if (!QFile::rename(copy, target))
            throw BriskoError(70, tr("Permission denied"));
        dialogs().message(tr("Logo has been imported!"), tr("Success"), Dialogs::Icon::Information);
        showLogo();
    });
}

void frmOptions::clearLogo() {
    if (!QFile::exists(Paths::logoPath()))
        return;
    if (dialogs().message(tr("Are you sure you want to delete this logo?"), tr("Confirm"),
                          Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    QFile::remove(Paths::logoPath());
    showLogo();
}

void frmOptions::showLogo() {
    const QPixmap logo(Paths::logoPath());
    if (logo.isNull()) {
        ui->logoImage->clear();
        return;
    }
    ui->logoImage->setPixmap(
        logo.scaled(ui->logoImage->maximumSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmOptions::addUser() {
    frmUser account(this);
    account.exec();
    runCommand(tr("An error has occured:  "), [this] { loadUsers(); });
}

void frmOptions::editUser() {
    frmUser account(this);
    account.userID = selectedUserID();
    account.exec();
    runCommand(tr("An error has occured:  "), [this] { loadUsers(); });
}

void frmOptions::deleteSelectedUser() {
    if (ui->lstUsers->topLevelItemCount() == 0)
        return;
    const qint32 userID = selectedUserID();
    if (dialogs().message(tr("Are you sure you want to remove this user account?"), tr("Confirm"),
                          Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    runCommand(tr("An error has occured:  "), [&] {
        SystemUser().DeleteUser(userID);
        loadUsers();
    });
}

// The current row, or the first when none was chosen.
qint32 frmOptions::selectedUserID() const {
    const QTreeWidgetItem *row = ui->lstUsers->currentItem();
    if (!row)
        row = ui->lstUsers->topLevelItem(0);
    return row ? row->data(0, Qt::UserRole).toInt() : 0;
}

bool frmOptions::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->lstUsers && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        deleteSelectedUser();
        return true;
    }
    return ModalScreen::eventFilter(watched, event);
}

void frmOptions::openMailHelp() {
    Utility::shellOpen(QString::fromUtf8(kWebsite) + u"/configure-mail-server-settings"_s);
}
