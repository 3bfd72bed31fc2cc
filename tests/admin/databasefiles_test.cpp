#include "admin/autobackup.h"
#include "admin/databasecopy.h"
#include "admin/databasefiles.h"
#include "app/schema.h"
#include "app/session.h"
#include "platform/paths.h"
#include "support/briskotest.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 countIn(const QString &path, const QString &sql) {
    db::Transaction transaction(path);
    return db::readFirst(sql)->value(u"n"_s).toLongLong();
}

void addReceipt(const QString &path, const QString &number) {
    db::Transaction transaction(path);
    db::execute(u"INSERT INTO tblReceipt (receiptNumber) VALUES (?)"_s, {number});
    transaction.commit();
}

const QString kReceipts = u"SELECT count(*) AS n FROM tblReceipt"_s;

using BackupTest = BriskoTest;

// The chooser loops on the open file's own name and on No; Cancel ends it
// quietly; Yes replaces the old backup with a checked copy.
TEST_F(BackupTest, ChoosesTheTargetAndCopiesTheOpenFile) {
    QDir().mkpath(Paths::backupsFolder());
    const QString target = Paths::backupsFolder() + u"/monday.db"_s;
    const QString kAlreadyExists = u" already exists.  Do you wish to overwrite this file?"_s;
    QFile::copy(databasePath(), target);
    addReceipt(databasePath(), u"00001"_s);

    boxes().texts.append({databasePath(), target, target});
    boxes().answers.append({Dialogs::Answer::Ok, Dialogs::Answer::No, Dialogs::Answer::Cancel});
    modMain::backupDatabase();
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Backup Filename | "_s,
                           u"Error | You can not use the name bdesk.db.  Please enter a different "
                           u"name for your backup file. | Critical"_s,
                           u"Backup Filename | "_s,
                           u"Existing Backup File | "_s + target + kAlreadyExists,
                           u"Backup Filename | "_s,
                           u"Existing Backup File | "_s + target + kAlreadyExists}));
    EXPECT_EQ(boxes().shown.first().request.folder, Paths::backupsFolder());
    EXPECT_EQ(boxes().shown.first().request.filter, u"Brisko Backup Files (*.db)"_s);
    EXPECT_EQ(countIn(target, kReceipts), 0);

    boxes().shown.clear();
    boxes().texts.append({target});
    modMain::backupDatabase(); // unscripted: Yes
    EXPECT_EQ(boxes().titles(),
              (QStringList{u"Backup Filename"_s, u"Existing Backup File"_s, u"Complete"_s}));
    EXPECT_EQ(boxes().lines().last(), u"Complete | Backup operation completed. | Information"_s);
    EXPECT_EQ(countIn(target, kReceipts), 1);
    EXPECT_FALSE(QFile::exists(target + u".part"_s));
}

// Another machine keeps saving receipts while the backup runs: the copy is
// sound and holds only whole receipts.
TEST_F(BackupTest, CopyWhileAnotherProcessWritesIsConsistent) {
    QProcess writer;
    writer.start(QString::fromUtf8(BRISKO_RECEIPTWRITER), {databasePath()});
    for (int saved = 0; saved < 20;) {
        ASSERT_TRUE(writer.waitForReadyRead(20000)) << writer.readAllStandardError().toStdString();
        saved += writer.readAll().count("saved");
    }
    const QString target = tempPath(u"during.db"_s);
    boxes().texts.append({target});
    modMain::backupDatabase();
    writer.kill();
    writer.waitForFinished();

    EXPECT_EQ(boxes().titles().last(), u"Complete"_s);
    EXPECT_TRUE(DatabaseCopy::isIntact(target));
    EXPECT_GE(countIn(target, kReceipts), 20);
    EXPECT_EQ(countIn(target, u"SELECT count(*) AS n FROM tblReceipt R WHERE (SELECT count(*) "
                              u"FROM tblReceipt_Product P WHERE P.receiptID = R.receiptID) <> 3"_s),
              0);
}

class RestoreTest : public BriskoTest {
protected:
    void SetUp() override {
        BriskoTest::SetUp();
        defaultFile = Paths::defaultDatabasePath();
        Schema::createDatabase(defaultFile);
        addReceipt(defaultFile, u"live"_s);
        addReceipt(databasePath(), u"backup"_s);
        addReceipt(databasePath(), u"backup"_s);
    }
    void TearDown() override {
        DatabaseCopy::setInterruption({});
        BriskoTest::TearDown();
    }
    QString defaultFile; // in the test's own data folder
};

TEST_F(RestoreTest, ReplacesTheDefaultFileAfterTheQuestion) {
    boxes().texts.append({defaultFile, databasePath()});
    boxes().answers.append({Dialogs::Answer::Ok, Dialogs::Answer::No});
    modMain::restoreDatabase();
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{u"Restore Database | "_s,
                     u"Error | You can not restore bdesk.db as it is the current database "
                     u"file.  Please choose a backup file. | Critical"_s,
                     u"Restore Database | "_s,
                     u"Restore Database | Warning!  You are about to replace the contents of "
                     u"your current database.  This action CAN NOT BE REVERSED.\nAre you sure "
                     u"you wish to continue?"_s,
                     u"Restored Canceled | Restore operation was canceled. | Information"_s}));
    EXPECT_EQ(boxes().shown.at(2).request.fileName, u"bdesk.db"_s); // the name used last time
    EXPECT_FALSE(session().restoreCompleted);
    EXPECT_EQ(countIn(defaultFile, kReceipts), 1);

    boxes().shown.clear();
    boxes().texts.append({databasePath()});
    modMain::restoreDatabase();
    EXPECT_EQ(boxes().lines().last(), u"Restore Complete | Restore operation completed.  Brisko "
                                      u"must now be restarted. | Information"_s);
    EXPECT_TRUE(session().restoreCompleted);
    EXPECT_EQ(countIn(defaultFile, kReceipts), 2);
}

// A file that is no Brisko database, or a copy broken off half-way, leaves
// the default file as it was.
TEST_F(RestoreTest, RefusedOrBrokenRestoreKeepsTheOldFile) {
    const QByteArray before = fileBytes(defaultFile);
    const QString notes = tempPath(u"notes.db"_s);
    QFile file(notes);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("shopping list\n");
    file.close();

    boxes().texts.append({notes});
    modMain::restoreDatabase();
    EXPECT_EQ(boxes().lines().at(1), u"Error | %1 is not a Brisko database, or it is damaged.  "
                                     u"Please choose a backup file. | Critical"_s.arg(notes));
    EXPECT_EQ(boxes().shown.size(), 3); // the chooser again, cancelled

    boxes().shown.clear();
    DatabaseCopy::setInterruption([] { throw BriskoError(13, u"disk pulled out"_s); });
    boxes().texts.append({databasePath()});
    modMain::restoreDatabase();
    EXPECT_EQ(boxes().lines().last(),
              u"Error | Could not restore database.  Error: 13 disk pulled out | Critical"_s);
    EXPECT_FALSE(session().restoreCompleted);
    EXPECT_EQ(fileBytes(defaultFile), before);
    EXPECT_EQ(QDir(QFileInfo(defaultFile).path()).entryList(QDir::Files),
              QStringList{u"bdesk.db"_s});
}

// One checked copy on the first start of a day, none on the second, and only
// the newest fourteen kept.
using AutoBackupTest = BriskoTest;

TEST_F(AutoBackupTest, OncePerDayKeepingTheNewestFourteen) {
    const QDate today(2026, 3, 20);
    QDir().mkpath(AutoBackup::folder());
    for (int daysAgo = 14; daysAgo >= 1; --daysAgo)
        QFile::copy(databasePath(), AutoBackup::folder() + u'/' +
                                        today.addDays(-daysAgo).toString(u"yyyy-MM-dd"_s) +
                                        u".db"_s);

    AutoBackup::runDaily(today);
    const QStringList kept = QDir(AutoBackup::folder()).entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(kept.size(), AutoBackup::kCopiesKept);
    EXPECT_EQ(kept.first(), u"2026-03-07.db"_s);
    EXPECT_EQ(kept.last(), u"2026-03-20.db"_s);
    EXPECT_TRUE(DatabaseCopy::isIntact(AutoBackup::folder() + u"/2026-03-20.db"_s));

    addReceipt(databasePath(), u"later"_s);
    const QByteArray first = fileBytes(AutoBackup::folder() + u"/2026-03-20.db"_s);
    AutoBackup::runDaily(today);
    EXPECT_EQ(fileBytes(AutoBackup::folder() + u"/2026-03-20.db"_s), first);
    EXPECT_TRUE(boxes().shown.isEmpty());

    session().dbPath = tempPath(u"gone.db"_s);
    AutoBackup::runDaily(today.addDays(1));
    EXPECT_EQ(boxes().titles(), QStringList{u"Automatic Backup"_s});
}

} // namespace
