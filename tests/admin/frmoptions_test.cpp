#include "admin/frmoptions.h"
#include "admin/frmuser.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/session.h"
#include "mainwin/frmmain.h"
#include "output/mailsettings.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// Names and values written as one text, split on spaces or "|".
QStringList words(const QString &text) {
    return text.split(u' ');
}
QStringList cells(const QString &text) {
    return text.split(u'|');
}

// The check boxes in the order the load ticks them.
const QStringList checkBoxes = words(u"chkResetNumbering chkRequireAddress hideTax "
                                     u"chkHideAcctBalance chkUseAutoComplete chkHideDiscount "
                                     u"chkTaxExtempt posPrinter"_s);

// The columns of tblSystem the options write, in that order.
const QStringList systemColumns = words(
    u"companyName address1 address2 city state zip phone numberFormat defaultPaymentType "
    u"defaultReceiptType taxRate tagline currencySymbol customField1 customField2 customField3 "
    u"customField4 customField5 customField6 customCurrency resetNumberEOY requireAddress "
    u"restrictAccess hideSalesTax hideAcctBalance useAutoComplete hideDiscountField isTaxExempt "
    u"otherFieldName usePOSPrinter"_s);

class OptionsTest : public BriskoTest {
protected:
    void TearDown() override {
        screen.reset();
        BriskoTest::TearDown();
    }

    // A company row with a value in every column, read into the record, and
    // mail settings with a user name.
    static void fillCompany(int currencySymbol = 128) {
        QStringList assignments;
        for (const QString &column : systemColumns)
            assignments.append(column + u" = ?"_s);
        db::Params values;
        for (const QString &value :
             cells(u"Ann's Bakery|1 Main St|Unit 2|Springfield|Ontario|K1A|555-1234|yy-[0000]|2|1|"
                   u"7.25|Fresh daily||C1|C2|C3|C4|C5|C6|Kr|1|0|0|1|0|1|1|0|Tips|1"_s))
            values.append(value);
        values[12] = currencySymbol;
        db::execute(u"UPDATE tblSystem SET "_s + assignments.join(u", "_s), values);
        resetCompany();
        modMain::loadCompanyInfo();
        MailSettings mail;
        mail.mailServer = u"smtp.example"_s;
        mail.mailFrom = u"ann@example"_s;
        mail.mailUsername = u"ann"_s;
        mail.mailPassword = u"pw"_s;
        mail.mailPort = 587;
        mail.useTLS = true;
        mail.store();
    }

    void open() {
        screen = std::make_unique<frmOptions>();
        screen->show();
    }
    template <typename Control = QLineEdit> Control *field(const QString &name) const {
        return control<Control>(*screen, name);
    }
    QAction *saveTool() const { return screen->findChild<QAction *>(u"ID_SaveChanges"_s); }
    QTabWidget *tabs() const { return field<QTabWidget>(u"SSTab1"_s); }
    void type(const QString &name, const QString &text) { field(name)->setText(text); }
    // Near the left edge: a radio button only takes clicks on its circle and caption.
    void clickOption(const QString &name) {
        auto *option = field<QAbstractButton>(name);
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
    }
    void save() { saveTool()->trigger(); }

    QString ticks(const QStringList &names) const {
        QString flags;
        for (const QString &name : names)
            flags += field<QAbstractButton>(name)->isChecked() ? u'1' : u'0';
        return flags;
    }
    QStringList users() const {
        QStringList rows;
        const auto *list = field<QTreeWidget>(u"lstUsers"_s);
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            rows.append(list->topLevelItem(row)->text(0) + u" | "_s +
                        list->topLevelItem(row)->text(1));
        return rows;
    }
    static QStringList storedRow() {
        const db::Row row = *db::readFirst(u"SELECT * FROM tblSystem"_s);
        QStringList values;
        for (const QString &column : systemColumns)
            values.append(row.value(column).toString());
        return values;
    }

    std::unique_ptr<frmOptions> screen;
};

TEST_F(OptionsTest, LoadsEveryFieldFromTheSettings) {
    fillCompany();
    open();
    EXPECT_EQ(screen->windowTitle(), u"Options"_s);
    QStringList titles;
    for (int tab = 0; tab < tabs()->count(); ++tab)
        titles.append(tabs()->tabText(tab));
    EXPECT_EQ(titles, (QStringList{u"Company"_s, u"Receipt"_s, u"Defaults"_s, u"Logo"_s,
                                   u"Custom Fields"_s, u"Security"_s, u"Email"_s}));

    QStringList texts;
    for (const QString &name :
         words(u"txtName txtAddress txtAddress2 txtCity txtZip txtPhone txtNumberFormat txtTagline "
               u"txtOtherFieldName txtTax txtCustom1 txtCustom2 txtCustom3 txtCustom4 txtCustom5 "
               u"txtCustom6 txtSymbol mailServer email mailPort mailUsername mailPassword"_s))
        texts.append(field(name)->text());
    EXPECT_EQ(texts, cells(u"Ann's Bakery|1 Main St|Unit 2|Springfield|K1A|555-1234|yy-[0000]|"
                           u"Fresh daily|Tips|7.25|C1|C2|C3|C4|C5|C6||smtp.example|ann@example|"
                           u"587|ann|pw"_s));
    EXPECT_EQ(field<QComboBox>(u"txtState"_s)->currentText(), u"Ontario"_s);
    EXPECT_EQ(ticks(checkBoxes), u"10101101"_s);
    EXPECT_EQ(ticks({u"optReceipt0"_s, u"optReceipt1"_s, u"optSecurity0"_s, u"optSecurity1"_s,
                     u"useAuth"_s, u"useTLS"_s}),
              u"011011"_s);
    EXPECT_EQ(field<QComboBox>(u"lstPaymentType"_s)->currentText(), u"Check"_s);
    EXPECT_EQ(field<QComboBox>(u"lstCurrencySymbol"_s)->currentText(), u"Euro \u20AC"_s);
    EXPECT_FALSE(field(u"txtSymbol"_s)->isEnabled());
    EXPECT_EQ(field<QLabel>(u"Label8"_s)->text(),
              u"Syntax:\nmm = Month\ndd = Day\nyy = Year(2), yyyy = Year (4)\n"
              u"0 = digit placeholder, place within []\n"_s);
    EXPECT_TRUE(field(u"mailUsername"_s)->isEnabled());
    EXPECT_FALSE(field<QTreeWidget>(u"lstUsers"_s)->isEnabled());
    EXPECT_FALSE(field<QAbstractButton>(u"cmdAddUser"_s)->isEnabled());
    EXPECT_TRUE(field<QAbstractButton>(u"cmdDeleteUser"_s)->isEnabled());
    EXPECT_FALSE(saveTool()->isEnabled());

    // Save opens on any change and closes on a missing name or format, a
    // custom currency without its symbol, or an address without a server.
    type(u"txtTagline"_s, u"Fresher"_s);
    EXPECT_TRUE(saveTool()->isEnabled());
    type(u"txtName"_s, u""_s);
    EXPECT_FALSE(saveTool()->isEnabled());
    type(u"txtName"_s, u"Ann"_s);
    field<QComboBox>(u"lstCurrencySymbol"_s)->setCurrentIndex(5);
    EXPECT_TRUE(field(u"txtSymbol"_s)->isEnabled());
    EXPECT_FALSE(saveTool()->isEnabled());
    type(u"txtSymbol"_s, u"Kr"_s);
    EXPECT_TRUE(saveTool()->isEnabled());
    type(u"mailServer"_s, u""_s);
    EXPECT_FALSE(saveTool()->isEnabled());
    clickOption(u"useAuth"_s);
    EXPECT_EQ(field(u"mailUsername"_s)->text() + field(u"mailPassword"_s)->text(), u""_s);
    EXPECT_FALSE(field<QLabel>(u"Label22"_s)->isEnabled());

    // Close keeps everything as it was.
    screen->findChild<QAction *>(u"ID_Close"_s)->trigger();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(storedRow().first(), u"Ann's Bakery"_s);
    EXPECT_EQ(MailSettings::stored().mailUsername, u"ann"_s);
}

// A failed save first; then one change on every tab: the row, the first-run
// mark, the mail settings, the record in memory, then the restart.
TEST_F(OptionsTest, SavingWritesEveryTabAndRestarts) {
    fillCompany();
    usertest::addAccount(u"boss"_s, u"pw"_s, 1, /*isAdmin=*/1);
    open();
    // The port is read after tblSystem and the first-run mark are written: they
    // stay written, the mail settings keep their values, and there is no restart.
    type(u"txtName"_s, u"New Name"_s);
    type(u"mailServer"_s, u"other.example"_s);
    type(u"mailPort"_s, u"40000"_s);
    save();
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Error | An error has occured:  Overflow | Critical"_s));
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(storedRow().first(), u"New Name"_s);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::firstRun), u"no"_s);
    EXPECT_EQ(MailSettings::stored().mailServer, u"smtp.example"_s);
    EXPECT_EQ(MailSettings::stored().mailPort, 587);
    EXPECT_EQ(process().restartCalls, 0);
    boxes().shown.clear();

    type(u"txtName"_s, u"Bo's Books"_s);
    type(u"txtZip"_s, u"O'1"_s);
    field<QComboBox>(u"txtState"_s)->setCurrentIndex(0); // the first entry means no state
    type(u"txtNumberFormat"_s, u" YY-[000]"_s);
    for (const QString &box : {u"chkResetNumbering"_s, u"chkRequireAddress"_s, u"posPrinter"_s})
        clickOption(box);
    type(u"txtTax"_s, u"6"_s);
    field<QComboBox>(u"lstPaymentType"_s)->setCurrentIndex(0);
    clickOption(u"optReceipt0"_s);
    field<QComboBox>(u"lstCurrencySymbol"_s)->setCurrentIndex(4);
    type(u"txtCustom6"_s, u"Table"_s);
    clickOption(u"optSecurity1"_s);
    EXPECT_TRUE(field<QTreeWidget>(u"lstUsers"_s)->isEnabled());
    type(u"mailServer"_s, u"mail.example"_s);
    clickOption(u"useAuth"_s);
    type(u"mailPort"_s, u""_s);
    save();

    EXPECT_EQ(boxes().lines(), QStringList(u"Multi-User | Options have been changed.  Brisko Desk "
                                           u"will now restart. | Exclamation"_s));
    EXPECT_EQ(process().restartCalls, 1);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(field(u"txtNumberFormat"_s)->text(), u" yy-[000]"_s);
    EXPECT_EQ(storedRow(),
              cells(u"Bo's Books|1 Main St|Unit 2|Springfield||O'1|555-1234|yy-[000]|1|"
                    u"0|6|Fresh daily|163|C1|C2|C3|C4|C5|Table||0|1|1|1|0|1|1|0|Tips|0"_s));
    EXPECT_EQ(Utility::RegGetString(SettingsKey::firstRun), u"no"_s);
    const MailSettings mail = MailSettings::stored();
    EXPECT_EQ(QStringList({mail.mailServer, mail.mailFrom, mail.mailUsername, mail.mailPassword,
                           QString::number(mail.mailPort), QString::number(mail.useTLS)}),
              (QStringList{u"mail.example"_s, u"ann@example"_s, u""_s, u""_s, u"0"_s, u"1"_s}));
    EXPECT_EQ(company().companyName, u"Bo's Books"_s);
    EXPECT_TRUE(company().restrictAccess);
    EXPECT_EQ(company().currencySymbol, 163);
}

// The gate in front of the number format, then the one in front of logins.
TEST_F(OptionsTest, NumberFormatAndSecurityChecksStopTheSave) {
    open();
    const QString placeholders = u"Error | Invalid receipt number format.  The format must "
                                 u"contain at least one digit placeholder within brackets.  \n"
                                 u"Example:  yy-[00] | Critical"_s;
    const QString brackets = u"Error | Digit placeholders are not properly formatted.  Digit "
                             u"placeholders must begin with a left bracket and close with a right "
                             u"bracket.  Only 0s are permitted within the brackets. | Critical"_s;
    const QString noAdmin = u"No Users Found | You must create at least one Admin user because "
                            u"you have chosen to restrict system access. | Critical"_s;
    type(u"txtName"_s, u"Ann"_s);
    clickOption(u"optSecurity1"_s); // so that a good format stops at the next check
    const struct {
        QString format, box;
        int tab; // where the screen stands after the box
    } cases[] = {{u"0000"_s, brackets, 4}, {u"[abc]"_s, placeholders, 1}, {u"[a0]"_s, brackets, 4},
                 {u"[0"_s, brackets, 4},   {u"]0["_s, brackets, 4},       {u"yy-[0]"_s, noAdmin, 5},
                 {u"[00x]"_s, noAdmin, 5}, {u"[0x]yy[a]"_s, noAdmin, 5}};
    for (const auto &check : cases) {
        boxes().shown.clear();
        tabs()->setCurrentIndex(4);
        type(u"txtNumberFormat"_s, check.format);
        save();
        EXPECT_EQ(boxes().lines(), QStringList(check.box)) << check.format.toStdString();
        EXPECT_EQ(tabs()->currentIndex(), check.tab) << check.format.toStdString();
    }

    boxes().shown.clear();
    type(u"txtTax"_s, u"7.5%"_s);
    save();
    EXPECT_EQ(boxes().lines(), QStringList(u"Error | Invalid tax rate.  Use format 0.00 and do "
                                           u"not include the % | Critical"_s));
    EXPECT_EQ(tabs()->currentIndex(), 2);
    EXPECT_EQ(storedRow().at(7), u"[00000]"_s);

    // Only ordinary users: still no administrator.
    usertest::addAccount(u"clerk"_s, u"pw"_s);
    open();
    type(u"txtName"_s, u"Ann"_s);
    clickOption(u"optSecurity1"_s);
    boxes().shown.clear();
    save();
    EXPECT_EQ(boxes().lines(), QStringList(noAdmin));
    EXPECT_EQ(process().restartCalls, 0);
}

// Each stored code selects its entry; the pound is stored as 163 and
// recognised as 164, so a saved pound comes back as the dollar.
TEST_F(OptionsTest, CurrencyCodesLoadAndSave) {
    const QList<std::pair<int, int>> loaded = {{0, 0},   {128, 1}, {165, 2}, {36, 3},
                                               {164, 4}, {-1, 5},  {163, 3}, {999, 3}};
    for (const auto &[code, entry] : loaded) {
        company().currencySymbol = static_cast<qint16>(code);
        company().customCurrency = u"Kr"_s;
        open();
        EXPECT_EQ(field<QComboBox>(u"lstCurrencySymbol"_s)->currentIndex(), entry) << code;
        EXPECT_EQ(field(u"txtSymbol"_s)->text(), code == -1 ? u"Kr"_s : u""_s) << code;
    }
    QStringList stored;
    for (int entry = 0; entry < 6; ++entry) {
        open();
        type(u"txtName"_s, u"Ann"_s);
        field<QComboBox>(u"lstCurrencySymbol"_s)->setCurrentIndex(entry);
        type(u"txtSymbol"_s, u"Kr"_s); // kept whatever the entry
        save();
        stored.append(db::readFirst(u"SELECT currencySymbol || '/' || customCurrency AS c "
                                    u"FROM tblSystem"_s)
                          ->text(u"c"_s));
    }
    EXPECT_EQ(stored, (QStringList{u"0/Kr"_s, u"128/Kr"_s, u"165/Kr"_s, u"36/Kr"_s, u"163/Kr"_s,
                                   u"-1/Kr"_s}));
}

// Any name holding ".jpg" is taken; the logo changes at once, without a save.
TEST_F(OptionsTest, LogoImportPreviewAndClear) {
    const QString notAPicture = tempPath(u"my.jpg.txt"_s);
    QFile text(notAPicture);
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no picture here");
    text.close();
    const QString picture = tempPath(u"logo.JPG"_s);
    QImage red(40, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(picture, "JPG"));

    open();
    auto *image = field<QLabel>(u"logoImage"_s);
    EXPECT_FALSE(field<QAbstractButton>(u"cmdImport"_s)->isEnabled());
    click(*screen, u"removeLogo"_s); // no logo: nothing happens
    type(u"logoPath"_s, tempPath(u"logo.png"_s));
    click(*screen, u"cmdImport"_s);
    EXPECT_EQ(boxes().lines(), QStringList(u"Invalid File | Only .jpg files can be used.  Please "
                                           u"select a different file. | Exclamation"_s));

    boxes().shown.clear();
    boxes().texts.append(picture);
    click(*screen, u"cmdBrowse"_s);
    EXPECT_EQ(boxes().shown.first().request.title, u"Browse for Images"_s);
    EXPECT_EQ(boxes().shown.first().request.filter, u"Image Files (*.jpg)"_s);
    EXPECT_EQ(field(u"logoPath"_s)->text(), picture);
    click(*screen, u"cmdImport"_s);
    EXPECT_FALSE(image->pixmap().isNull());
    EXPECT_EQ(fileBytes(Paths::logoPath()), fileBytes(picture));

    boxes().shown.clear();
    boxes().answers.append(Dialogs::Answer::No);
    type(u"logoPath"_s, notAPicture);
    click(*screen, u"cmdImport"_s); // No keeps the logo
    EXPECT_EQ(fileBytes(Paths::logoPath()), fileBytes(picture));
    click(*screen, u"cmdImport"_s);
    EXPECT_EQ(boxes().lines(),
              (QStringList(2, u"Confirm Replace | This will remove your current logo.  Do you "
                              u"want to proceed? | Question"_s)
               << u"Success | Logo has been imported! | Information"_s));
    EXPECT_EQ(fileBytes(Paths::logoPath()), QByteArray("no picture here"));
    EXPECT_TRUE(image->pixmap().isNull());

    boxes().shown.clear();
    click(*screen, u"removeLogo"_s);
    EXPECT_EQ(boxes().lines(), QStringList(u"Confirm | Are you sure you want to delete this logo? "
                                           u"| Question"_s));
    EXPECT_FALSE(QFile::exists(Paths::logoPath()));
    EXPECT_FALSE(saveTool()->isEnabled());
}

// The accounts change at once: add, edit on a double click, delete by the
// button or the Delete key, each after Yes.
TEST_F(OptionsTest, UsersAreAddedEditedAndDeleted) {
    usertest::addAccount(u"bob"_s, u"pw"_s);
    const qint32 ann = usertest::addAccount(u"ann"_s, u"pw"_s, 1, /*isAdmin=*/1);
    company().restrictAccess = true;
    session().currentUser = std::make_shared<SystemUser>();
    open();
    EXPECT_FALSE(tabs()->isTabEnabled(5)); // for administrators only
    session().currentUser->isAdmin = 1;
    open();
    EXPECT_TRUE(tabs()->isTabEnabled(5));
    tabs()->setCurrentIndex(5);
    auto *list = field<QTreeWidget>(u"lstUsers"_s);
    EXPECT_TRUE(field<QRadioButton>(u"optSecurity1"_s)->isChecked());
    EXPECT_EQ(users(), (QStringList{u"ann | Admin"_s, u"bob | User"_s}));

    const QPoint first = list->visualItemRect(list->topLevelItem(0)).center();
    const qint32 edited = driveModal<frmUser>(
        [&] {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, first);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, first);
        },
        [](frmUser &account) {
            control<QLineEdit>(account, u"txtUsername"_s)->setText(u"anna"_s);
            click(account, u"cmdOK"_s);
            return account.userID;
        });
    EXPECT_EQ(edited, ann);
    driveModal<frmUser>([&] { click(*screen, u"cmdAddUser"_s); },
                        [](frmUser &account) {
                            control<QLineEdit>(account, u"txtUsername"_s)->setText(u"cy"_s);
                            click(account, u"cmdOK"_s);
                        });
    EXPECT_EQ(users(), (QStringList{u"anna | Admin"_s, u"bob | User"_s, u"cy | User"_s}));

    list->setCurrentItem(list->topLevelItem(2));
    boxes().answers.append(Dialogs::Answer::No);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(users().size(), 3);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(users(), (QStringList{u"anna | Admin"_s, u"bob | User"_s}));
    EXPECT_EQ(boxes().lines().last(), u"Confirm | Are you sure you want to remove this user "
                                      u"account? | Question"_s);

    // The last administrator goes; the check still counts the one seen.
    list->setCurrentItem(list->topLevelItem(0));
    click(*screen, u"cmdDeleteUser"_s);
    EXPECT_EQ(users(), QStringList(u"bob | User"_s));
    type(u"txtName"_s, u"Ann"_s);
    save();
    EXPECT_EQ(process().restartCalls, 1);
}

TEST_F(OptionsTest, TheMainWindowsOptionsToolOpensTheScreen) {
    frmMain window;
    driveModal<frmOptions>([&] { window.tool(u"ID_Options"_s)->trigger(); },
                           [](frmOptions &options) {
                               EXPECT_EQ(control<QLineEdit>(options, u"txtNumberFormat"_s)->text(),
                                         u"[00000]"_s);
                               options.reject();
                           });
}

} // namespace
