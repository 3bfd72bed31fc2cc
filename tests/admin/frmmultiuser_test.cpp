#include "admin/frmmultiuser.h"
#include "app/session.h"
#include "platform/registry.h"
#include "support/briskotest.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class MultiUserTest : public BriskoTest {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        QDir().mkpath(share);
    }

    void open(bool fromWizard = false) {
        owned = std::make_unique<frmMultiUser>();
        screen = owned.get();
        screen->fromWizard = fromWizard;
        screen->show();
    }
    QAbstractButton *button(const QString &name) {
        return screen->findChild<QAbstractButton *>(name);
    }
    QLineEdit *location() { return screen->findChild<QLineEdit *>(u"fileLocation"_s); }
    // Near the left edge: a radio button only takes clicks on its circle and caption.
    void click(const QString &name) {
        QAbstractButton *target = button(name);
        QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(8, target->height() / 2));
    }

    // Shared mode on `folder`, copying the stand-alone file when `copy` is set.
    void chooseShare(const QString &folder, bool copy) {
        click(u"optSharedOn"_s);
        location()->setText(folder);
        if (copy)
            click(u"copyLocal"_s);
        click(u"cmdOK"_s);
    }
    static QString setting(const QString &name) { return Utility::RegGetString(name); }
    static qint64 receiptsIn(const QString &path) {
        db::Transaction transaction(path);
        return db::readFirst(u"SELECT count(*) AS n FROM tblReceipt"_s)->value(u"n"_s).toLongLong();
    }

    const QString share = tempPath(u"share"_s);
    const QString shareFile = share + u"/bdesk.db"_s;
    std::unique_ptr<frmMultiUser> owned; // shown without a modal loop
    frmMultiUser *screen = nullptr;      // the one the helpers act on
};

TEST_F(MultiUserTest, LoadsTheSettingsRemovesTheLockAndTheWizardOffersOnlyTheShare) {
    session().useSharedFile = true;
    session().shareFileLocation = shareFile;
    open();
    EXPECT_EQ(screen->windowTitle(), u"Multi-User Settings"_s);
    EXPECT_TRUE(button(u"optSharedOn"_s)->isChecked());
    EXPECT_EQ(location()->text(), share);
    EXPECT_FALSE(button(u"cmdOK"_s)->isEnabled());
    click(u"cmdRemoveLock"_s);
    EXPECT_EQ(boxes().lines().last(),
              u"No lock file | A lock file was not found for %1 | Information"_s.arg(shareFile));
    QFile lock(shareFile + u".lck"_s);
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    click(u"cmdRemoveLock"_s);
    EXPECT_EQ(boxes().lines().last(), u"Success | Lock file removed. | Information"_s);
    EXPECT_FALSE(lock.exists());
    click(u"optSharedOff"_s);
    EXPECT_FALSE(location()->isEnabled());
    EXPECT_TRUE(button(u"cmdOK"_s)->isEnabled());

    resetSession();
    open(/*fromWizard=*/true);
    EXPECT_TRUE(button(u"optSharedOff"_s)->isHidden());
    EXPECT_TRUE(button(u"copyLocal"_s)->isHidden());
    EXPECT_TRUE(button(u"optSharedOn"_s)->isChecked());
    EXPECT_TRUE(location()->isEnabled());
}

// Run modal, as the main window runs it: No at the question keeps the screen
// open; Yes writes the settings and restarts on the chosen file.
TEST_F(MultiUserTest, StandAloneWritesTheSettingsAndRestarts) {
    session().useSharedFile = true;
    session().shareFileLocation = shareFile;
    boxes().answers.append(Dialogs::Answer::No);
    driveModal<frmMultiUser>(
        [] {
            frmMultiUser modal;
            modal.exec();
        },
        [this](frmMultiUser &modal) {
            screen = &modal;
            click(u"optSharedOff"_s);
            click(u"cmdOK"_s);
            EXPECT_EQ(process().restartCalls, 0);
            EXPECT_TRUE(modal.isVisible());
            click(u"cmdOK"_s);
            EXPECT_FALSE(modal.isVisible());
        });
    EXPECT_EQ(boxes().lines().last(), u"Multi-User | Database settings have been changed.  Brisko "
                                      u"will now restart. | Exclamation"_s);
    EXPECT_EQ(setting(SettingsKey::useSharedFile) + u'|' + setting(SettingsKey::shareFileLocation) +
                  u'|' + setting(SettingsKey::firstRun),
              u"False||no"_s);
    EXPECT_FALSE(session().useSharedFile);
    EXPECT_EQ(process().restartCalls, 1);
}

// Checks on the folder: missing, and without a database unless one is copied.
TEST_F(MultiUserTest, SharedFolderChecks) {
    open();
    chooseShare(share + u"/nowhere"_s, false);
    EXPECT_EQ(boxes().lines().last(), u"Path does not exist | "_s + share +
                                          u"/nowhere does not exist.  Please select a valid "
                                          u"location. | Critical"_s);

    boxes().answers.append({Dialogs::Answer::Yes, Dialogs::Answer::Cancel});
    location()->setText(share);
    click(u"cmdOK"_s);
    EXPECT_EQ(boxes().titles().last(), u"Invalid Brisko Desk Database"_s);
    EXPECT_EQ(process().restartCalls, 0);
    EXPECT_EQ(setting(SettingsKey::useSharedFile), u""_s);

    click(u"cmdOK"_s); // Yes to both: the program restarts on a missing file
    EXPECT_EQ(setting(SettingsKey::useSharedFile) + u'|' + setting(SettingsKey::shareFileLocation),
              u"True|"_s + shareFile);
    EXPECT_EQ(process().restartCalls, 1);
}

// An empty share gets the copy at once; over a database already there, No
// keeps that one (and says so) and Yes replaces it. Either way the switch holds.
TEST_F(MultiUserTest, CopiesTheStandAloneFileAndAsksBeforeOverwriting) {
    db::execute(u"INSERT INTO tblReceipt (receiptNumber) VALUES ('1')"_s);
    open();
    chooseShare(share, /*copy=*/true);
    EXPECT_EQ(boxes().titles(), (QStringList{u"Confirm Settings"_s, u"Multi-User"_s}));
    EXPECT_EQ(receiptsIn(shareFile), 1);

    db::execute(u"INSERT INTO tblReceipt (receiptNumber) VALUES ('2')"_s);
    for (const auto answer : {Dialogs::Answer::No, Dialogs::Answer::Yes}) {
        boxes().shown.clear();
        boxes().answers.append({Dialogs::Answer::Yes, answer});
        open();
        chooseShare(share, /*copy=*/true);
        EXPECT_EQ(boxes().lines().at(1),
                  u"Overwrite Existing File | WARNING!  There is an Brisko database at %1.  Are "
                  u"you sure you want to PROCEED and overwrite the existing file?  All data will "
                  u"be lost in the existing file. | Exclamation"_s.arg(share));
        if (answer == Dialogs::Answer::No) {
            EXPECT_EQ(boxes().lines().at(2), u"Multi-user Setting | Stand-alone database file was "
                                             u"not copied. | Information"_s);
            EXPECT_EQ(receiptsIn(shareFile), 1);
        }
    }
    EXPECT_EQ(receiptsIn(shareFile), 2);
    EXPECT_EQ(setting(SettingsKey::shareFileLocation), shareFile);
    EXPECT_EQ(process().restartCalls, 3);
}

} // namespace
