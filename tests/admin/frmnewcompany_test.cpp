#include "admin/frmmultiuser.h"
#include "admin/frmnewcompany.h"
#include "admin/systemuser.h"
#include "app/company.h"
#include "app/session.h"
#include "app/startup.h"
#include "mainwin/frmmain.h"
#include "platform/registry.h"
#include "support/briskotest.h"
#include "usertestdata.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class WizardTest : public BriskoTest {
protected:
    void TearDown() override {
        wizard.reset();
        BriskoTest::TearDown();
    }

    void open() {
        wizard = std::make_unique<frmNewCompany>();
        wizard->show();
    }
    QLineEdit *text(const QString &name) const { return control<QLineEdit>(*wizard, name); }
    int page() const { return control<QTabWidget>(*wizard, u"TabStrip1"_s)->currentIndex(); }
    // Near the left edge: a radio button only takes clicks on its circle and caption.
    void clickOption(const QString &name) {
        auto *option = control<QRadioButton>(*wizard, name);
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
    }
    static QString storedCompany() {
        return db::readFirst(u"SELECT companyName || '|' || address1 || '|' || state || '|' || zip "
                             u"|| '|' || numberFormat || '|' || defaultPaymentType || '|' || "
                             u"defaultReceiptType || '|' || taxRate || '|' || restrictAccess AS c "
                             u"FROM tblSystem"_s)
            ->text(u"c"_s);
    }

    std::unique_ptr<frmNewCompany> wizard;
};

TEST_F(WizardTest, PagesGoBackAndForthSharedDatabaseAndCancelAsks) {
    open();
    EXPECT_EQ(wizard->windowTitle(), u"New Company Setup"_s);
    auto *tabs = control<QTabWidget>(*wizard, u"TabStrip1"_s);
    EXPECT_EQ(QStringList({tabs->tabText(0), tabs->tabText(1), tabs->tabText(2)}),
              (QStringList{u"Welcome"_s, u"Company Information"_s, u"Default Settings"_s}));
    EXPECT_EQ(control<QComboBox>(*wizard, u"txtState"_s)->currentText(), u"AL"_s);
    EXPECT_EQ(text(u"txtTax"_s)->text(), u"0.00"_s);
    EXPECT_FALSE(text(u"txtUsername"_s)->isEnabled());
    EXPECT_EQ(page(), 0);
    for (const auto &[button, expected] : QList<std::pair<QString, int>>{{u"cmdNext0"_s, 1},
                                                                         {u"cmdNext1"_s, 2},
                                                                         {u"cmdBack2"_s, 1},
                                                                         {u"cmdBack1"_s, 0},
                                                                         {u"cmdNext0"_s, 1}}) {
        click(*wizard, button);
        EXPECT_EQ(page(), expected) << button.toStdString();
    }
    clickOption(u"optSecurity1"_s);
    EXPECT_TRUE(text(u"txtPassword"_s)->isEnabled());
    driveModal<frmMultiUser>(
        [&] { click(*wizard, u"cmdShard"_s); },
        [](frmMultiUser &multiUser) {
            EXPECT_TRUE(multiUser.fromWizard);
            EXPECT_TRUE(control<QRadioButton>(multiUser, u"optSharedOff"_s)->isHidden());
            multiUser.reject();
        });

    // No keeps the page and the fields; Yes ends the program, the mark unset.
    text(u"txtName"_s)->setText(u"Ann's"_s);
    boxes().answers.append(Dialogs::Answer::No);
    click(*wizard, u"cmdCancel1"_s);
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Abort Wizard | You must complete this process to use Brisko.  Are you "
                          u"sure you want to cancel this process?   | Question"_s));
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(text(u"txtName"_s)->text(), u"Ann's"_s);
    EXPECT_EQ(process().endProgramCalls, 0);
    QTest::keyClick(wizard.get(), Qt::Key_Escape); // asks as Cancel does; Yes
    EXPECT_EQ(boxes().shown.size(), 2);
    EXPECT_FALSE(wizard->isVisible());
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::firstRun), u""_s);
}

// The checks in their order, then an open system: no account.
TEST_F(WizardTest, FinishesWithoutAnAdministrator) {
    open();
    text(u"txtTax"_s)->setText(u"7.5%"_s);
    click(*wizard, u"cmdNext0"_s);
    click(*wizard, u"cmdNext2"_s);
    EXPECT_EQ(boxes().lines(), QStringList(u"Error | Invalid tax rate.  Use format 0.00 and do not "
                                           u"include the % | Critical"_s));
    EXPECT_EQ(page(), 2);
    text(u"txtTax"_s)->setText(u"0.00"_s);
    click(*wizard, u"cmdNext2"_s);
    EXPECT_EQ(boxes().lines().last(), u"Missing Company Name | Please enter the name of your "
                                      u"company. | Exclamation"_s);
    EXPECT_EQ(page(), 1);

    text(u"txtName"_s)->setText(u"Ann's Bakery"_s);
    text(u"txtAddress"_s)->setText(u"1 O'Neil St"_s);
    text(u"txtZip"_s)->setText(u"O'1"_s);
    clickOption(u"optSecurity1"_s);
    clickOption(u"optSecurity0"_s); // an open system ignores the account fields
    text(u"txtUsername"_s)->setText(u"ignored"_s);
    boxes().shown.clear();
    click(*wizard, u"cmdNext2"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
    EXPECT_EQ(wizard->result(), QDialog::Accepted);
    EXPECT_EQ(storedCompany(), u"Ann's Bakery|1 O'Neil St||O'1|[00000]|1|1|0.0|0"_s);
    EXPECT_EQ(company().companyName, u"Ann's Bakery"_s);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::firstRun), u"no"_s);
    EXPECT_TRUE(SystemUser().GetUsers().isEmpty());
}

TEST_F(WizardTest, FinishesWithAFirstAdministrator) {
    open();
    click(*wizard, u"cmdNext0"_s);
    text(u"txtName"_s)->setText(u"Bo"_s);
    control<QComboBox>(*wizard, u"txtState"_s)->setEditText(u"Texas"_s);
    click(*wizard, u"cmdNext1"_s);
    clickOption(u"optReceipt0"_s); // "Services", stored as 0
    control<QComboBox>(*wizard, u"lstPaymentType"_s)->setCurrentIndex(1);
    text(u"txtTax"_s)->setText(u"6.5"_s);
    clickOption(u"optSecurity1"_s);
    text(u"txtUsername"_s)->setText(u"boss"_s);
    click(*wizard, u"cmdNext2"_s);
    EXPECT_EQ(boxes().lines(), QStringList(u"Missing Admin Username/Password | Please enter a "
                                           u"default username and password for the "
                                           u"administrator. | Exclamation"_s));
    text(u"txtPassword"_s)->setText(u"s3cret"_s);
    click(*wizard, u"cmdNext2"_s);
    EXPECT_EQ(boxes().lines().last(),
              u"Admin Account Created | The default user account has been created.  You will need "
              u"to log into Brisko with this account where you can set up additional user "
              u"accounts. | Information"_s);
    EXPECT_EQ(storedCompany(), u"Bo||Texas||[00000]|2|0|6.5|1"_s);
    SystemUser admin;
    ASSERT_TRUE(admin.GetUser(u"boss"_s, usertest::encrypted(u"s3cret"_s), 0));
    EXPECT_EQ((QList<int>{admin.canDelete, admin.canEdit, admin.canVoid, admin.isAdmin,
                          admin.status, admin.canRunReports}),
              (QList<int>{1, 1, 1, 1, 1, 0}));
    EXPECT_TRUE(company().restrictAccess);
}

// A new account: the wizard shows before the main window's caption, comes
// back after a cancel, and never again once finished.
TEST_F(WizardTest, ShowsOnTheFirstStartUntilFinished) {
    Utility::RegSetString(SettingsKey::lastDB, {});
    const auto start = [this](const std::function<void(frmNewCompany &)> &act) {
        resetSession();
        resetCompany();
        EXPECT_TRUE(modMain::Initialise());
        frmMain window;
        window.show();
        bool loaded = false;
        if (act)
            driveModal<frmNewCompany>([&] { loaded = window.load(); }, act);
        else
            loaded = window.load();
        return std::make_pair(loaded, window.windowTitle());
    };

    boxes().answers.append(Dialogs::Answer::Yes);
    EXPECT_FALSE(start([](frmNewCompany &shown) { click(shown, u"cmdCancel0"_s); }).first);
    EXPECT_EQ(process().endProgramCalls, 1);

    const auto finished = start([](frmNewCompany &shown) {
        control<QLineEdit>(shown, u"txtName"_s)->setText(u"Ann's Bakery"_s);
        click(shown, u"cmdNext2"_s);
    });
    EXPECT_EQ(finished, std::make_pair(true, u"Brisko - Ann's Bakery"_s));

    // Were the wizard to show again, it would be closed and noted here.
    bool shownAgain = false;
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, [&] {
        if (auto *again = qobject_cast<frmNewCompany *>(QApplication::activeModalWidget())) {
            shownAgain = true;
            again->done(QDialog::Accepted);
        }
    });
    guard.start(10);
    EXPECT_EQ(start(nullptr), std::make_pair(true, u"Brisko - Ann's Bakery"_s));
    EXPECT_FALSE(shownAgain);
}

} // namespace
