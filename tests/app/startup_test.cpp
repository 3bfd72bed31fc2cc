#include "app/company.h"
#include "app/database.h"
#include "app/session.h"
#include "app/startup.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "support/briskotest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;
using Icon = Dialogs::Icon;
using Answer = Dialogs::Answer;

namespace {

class InitialiseTest : public BriskoTest {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        Utility::RegSetString(SettingsKey::lastDB, databasePath());
    }

    void numberThisYear(int lastNumberUsed = 0) {
        db::execute(
            u"INSERT INTO tblReceiptNumbering (receiptYear, lastNumberUsed) VALUES (?, ?)"_s,
            {session().year2, lastNumberUsed});
    }

    void setResetNumberEOY(int value) {
        db::execute(u"UPDATE tblSystem SET resetNumberEOY = ?"_s, {value});
    }

    QString writtenFile(const QString &name, const QByteArray &content) const {
        QFile file(tempPath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    // The last number stored for this year, or -1 when it has no row.
    int storedLastNumber() {
        const auto row =
            db::readFirst(u"SELECT lastNumberUsed FROM tblReceiptNumbering WHERE receiptYear = ?"_s,
                          {session().year2});
        return row ? row->int32(u"lastNumberUsed"_s) : -1;
    }
};

TEST_F(InitialiseTest, TheFirstStartOnAnAccountPutsANewDatabaseInPlace) {
    Utility::RegSetString(SettingsKey::lastDB, {});
    ASSERT_TRUE(modMain::Initialise());
    const QString delivered = Paths::defaultDatabasePath();
    EXPECT_TRUE(QFileInfo::exists(delivered));
    EXPECT_EQ(session().dbPath, delivered);
    EXPECT_EQ(session().connectionString, delivered);
    EXPECT_TRUE(boxes().shown.isEmpty()); // not even the year question
    EXPECT_TRUE(session().firstRunFlag);
    EXPECT_EQ(storedLastNumber(), 0);
}

TEST_F(InitialiseTest, AShareSettingIsReadAsAYesOrNoAndAMissingShareMeansLocal) {
    numberThisYear();
    Utility::RegSetString(SettingsKey::useSharedFile, u"True"_s);
    Utility::RegSetString(SettingsKey::shareFileLocation, u"/nowhere/bdesk.db"_s);
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Share File Doesn't Exist | Share file /nowhere/bdesk.db could not be "
                          u"found.  Using local database instead.  Go to File->Multi-user "
                          u"settings and check your share file settings. | Critical"_s));
    EXPECT_FALSE(session().useSharedFile);
    EXPECT_EQ(session().shareFileLocation, u""_s);
    EXPECT_EQ(session().dbPath, databasePath());
    EXPECT_EQ(Utility::RegGetString(SettingsKey::useSharedFile), u"True"_s);
    boxes().shown.clear();
    Utility::RegSetString(SettingsKey::lastDB, u"/elsewhere/local.db"_s);
    Utility::RegSetString(SettingsKey::useSharedFile, u" true "_s);
    Utility::RegSetString(SettingsKey::shareFileLocation, databasePath());
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_TRUE(session().useSharedFile);
    EXPECT_EQ(session().dbPath, databasePath());

    Utility::RegSetString(SettingsKey::lastDB, databasePath());
    Utility::RegSetString(SettingsKey::useSharedFile, u"perhaps"_s);
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_FALSE(session().useSharedFile);
    EXPECT_EQ(session().shareFileLocation, u""_s);
    EXPECT_TRUE(boxes().shown.isEmpty());

    // The wizard is due until firstRun holds a value.
    EXPECT_TRUE(session().firstRunFlag);
    Utility::RegSetString(SettingsKey::firstRun, u"no"_s);
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_FALSE(session().firstRunFlag);
}

TEST_F(InitialiseTest, AMissingLastDatabaseAsksForAnotherOrEndsSilently) {
    numberThisYear();
    const QString deleted = tempPath(u"deleted.db"_s);
    Utility::RegSetString(SettingsKey::lastDB, deleted);
    EXPECT_FALSE(modMain::Initialise()); // the chooser cancelled ends silently
    EXPECT_EQ(boxes().titles(), (QStringList{u"Missing / Invalid Database"_s, u"Open Database"_s}));
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_TRUE(session().shuttingDown);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), deleted);

    boxes().shown.clear();
    const QString folder = tempPath(u"folder.db"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    Utility::RegSetString(SettingsKey::lastDB, folder);
    EXPECT_FALSE(modMain::Initialise());
    EXPECT_EQ(boxes().titles(), (QStringList{u"Missing / Invalid Database"_s, u"Open Database"_s}));

    boxes().shown.clear();
    Utility::RegSetString(SettingsKey::lastDB, deleted);
    boxes().texts.enqueue(databasePath());
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{u"Missing / Invalid Database | Database "_s + deleted +
                         u" does not exist.  Please select a database to open. | Exclamation"_s,
                     u"Open Database | "_s}));
    EXPECT_EQ(boxes().shown[1].request.folder, deleted);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), databasePath());
    EXPECT_EQ(session().dbPath, databasePath());
}

TEST_F(InitialiseTest, AFileThatIsNoBriskoDatabaseOffersTheChooserUntilOneOpens) {
    numberThisYear();
    const QString junk = writtenFile(u"junk.db"_s, QByteArray(4096, 'x'));
    const QString foreign = tempPath(u"foreign.db"_s);
    {
        db::Transaction other(foreign, db::Transaction::Open::CreateIfMissing);
        db::execute(u"CREATE TABLE notes (text TEXT)"_s);
        other.commit();
    }
    Utility::RegSetString(SettingsKey::lastDB, junk);
    boxes().texts << foreign << databasePath();
    ASSERT_TRUE(modMain::Initialise());
    const QString error = u"Startup Error | An error occured during the intilization:  "_s;
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{error + u"file is not a database | Critical"_s, u"Open Database | "_s,
                     error + u"no such table: tblSystem | Critical"_s, u"Open Database | "_s}));
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), databasePath());
    EXPECT_EQ(session().connectionString, databasePath());

    boxes().shown.clear();
    Utility::RegSetString(SettingsKey::lastDB, junk);
    EXPECT_FALSE(modMain::Initialise());
    EXPECT_EQ(boxes().titles(), (QStringList{u"Startup Error"_s, u"Open Database"_s}));
    EXPECT_EQ(process().endProgramCalls, 1);
}

TEST_F(InitialiseTest, AnEmptyFileBecomesANewDatabaseWhenTheOwnerAgrees) {
    const QString empty = writtenFile(u"empty.db"_s, {});
    Utility::RegSetString(SettingsKey::lastDB, empty);
    boxes().answers << Answer::No;
    EXPECT_FALSE(modMain::Initialise()); // No: the chooser, here cancelled
    EXPECT_EQ(boxes().titles(), (QStringList{u"Missing / Invalid Database"_s, u"Open Database"_s}));
    EXPECT_EQ(QFileInfo(empty).size(), 0);

    boxes().shown.clear();
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_EQ(boxes().lines(), QStringList(u"Missing / Invalid Database | The file "_s + empty +
                                           u" is empty. Create a new Brisko database in it? | "
                                           u"Question"_s));
    EXPECT_EQ(session().dbPath, empty);
    EXPECT_EQ(db::readFirst(u"SELECT dbVersion FROM tblSystem"_s)->text(u"dbVersion"_s),
              u"4.2.5"_s);
}

class YearChangeTest : public InitialiseTest {
protected:
    void SetUp() override {
        InitialiseTest::SetUp();
        db::execute(
            u"INSERT INTO tblReceiptNumbering (receiptYear, lastNumberUsed) VALUES ('12', 41)"_s);
    }
};

TEST_F(YearChangeTest, WithoutResetNumberingRunsOnAfterOneQuestion) {
    setResetNumberEOY(0);
    ASSERT_TRUE(modMain::Initialise());
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Year Change | The program has detected a change in the receipt "
                          u"year.\nand will create a new year for "_s +
                          session().year2 + u".  Click OK to proceed. | Information"_s));
    EXPECT_EQ(boxes().shown[0].buttons, Dialogs::Buttons::OkCancel);
    EXPECT_EQ(storedLastNumber(), 41); // the next receipt gets 42
}

// Each run: the answers and typed texts, then the boxes shown and the last
// number stored (-1: no year, the program ended).
TEST_F(YearChangeTest, TheStartNumberIsCheckedUntilAcceptedOrTheProgramEnds) {
    const QString change = u"Year Change"_s, start = u"Starting Number"_s,
                  invalid = u"Invalid Starting Number"_s, abort = u"Abort New Year"_s,
                  failure = u"Program Failure | "_s;
    const QString cannot = u"This program can not continue without creating the new year. | "
                           u"Critical"_s;
    const struct {
        QList<Answer> answers;
        QStringList texts, titles;
        int last;
        QString ending = {};
    } runs[] = {
        {{Answer::Cancel}, {}, {change, u"Program Failure"_s}, -1, failure + cannot},
        {{Answer::Ok, Answer::No}, {u""_s, u"5"_s}, {change, start, abort, invalid, start}, 4},
        {{Answer::Ok, Answer::Yes},
         {},
         {change, start, abort, u"Program Failure"_s},
         -1,
         failure + u"User aborted.  "_s + cannot},
        {{}, {u"0"_s, u"12a"_s, u"7"_s}, {change, start, invalid, start, invalid, start}, 6},
    };
    int ended = 0;
    for (const auto &run : runs) {
        db::execute(u"DELETE FROM tblReceiptNumbering WHERE receiptYear = ?"_s, {session().year2});
        boxes().shown.clear();
        boxes().answers.append(run.answers);
        boxes().texts.append(run.texts);
        EXPECT_EQ(modMain::Initialise(), run.last >= 0);
        EXPECT_EQ(boxes().titles(), run.titles);
        for (const auto &box : boxes().shown) {
            if (box.title == start) {
                EXPECT_EQ(box.text, u"Entering the starting number for the receipt.  Must be "
                                    u"greater or equal to 1."_s);
            }
            if (box.title == abort) {
                EXPECT_EQ(box.text, u"Abort this process?"_s);
                EXPECT_EQ(box.icon, Icon::Question);
            }
        }
        EXPECT_EQ(storedLastNumber(), run.last);
        EXPECT_EQ(process().endProgramCalls, ended += run.last < 0);
        if (!run.ending.isEmpty()) {
            EXPECT_EQ(boxes().lines().last(), run.ending);
        }
    }
    EXPECT_EQ(boxes().shown[2].text, u"Starting number must be greater than zero"_s);
    EXPECT_EQ(boxes().shown[4].text, u"Starting number can only contain digits"_s);
    EXPECT_EQ(boxes().shown[4].icon, Icon::Exclamation);
}

} // namespace
