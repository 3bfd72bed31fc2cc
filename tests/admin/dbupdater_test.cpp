#include "admin/dbupdater.h"
#include "app/company.h"
#include "app/schema.h"
#include "app/session.h"
#include "app/startup.h"
#include "olddatabase.h"
#include "platform/registry.h"
#include "support/briskotest.h"

#include <QFile>
#include <QSqlField>

using namespace Qt::Literals::StringLiterals;

namespace {

// Every row of `sql` on the file at `path`: fields joined by ",", rows by
// ";", a Null shown as "Null".
QString rowsOf(const QString &path, const QString &sql) {
    db::Transaction transaction(path);
    QStringList rows;
    for (const db::Row &row : db::select(sql)) {
        QStringList fields;
        for (const QString &column :
             sql.section(u"SELECT "_s, 1).section(u" FROM"_s, 0, 0).split(u", "_s))
            fields.append(row.isNull(column) ? u"Null"_s : row.value(column).toString());
        rows.append(fields.join(u','));
    }
    return rows.join(u';');
}

// The tables, columns and indexes of a file, one line each, sorted.
QStringList schemaOf(const QString &path) {
    db::Transaction transaction(path);
    QStringList lines;
    for (const db::Row &object : db::select(
             u"SELECT type, name, tbl_name FROM sqlite_master WHERE name NOT LIKE 'sqlite_%'"_s)) {
        const QString name = object.text(u"name"_s);
        lines.append(object.text(u"type"_s) + u' ' + name + u" on "_s + object.text(u"tbl_name"_s));
        if (object.text(u"type"_s) != u"table"_s)
            continue;
        for (const db::Row &column : db::select(u"PRAGMA table_info(%1)"_s.arg(name))) {
            lines.append(u"%1.%2 %3 notnull=%4 default=%5 pk=%6"_s.arg(
                name, column.text(u"name"_s), column.text(u"type"_s), column.text(u"notnull"_s),
                column.textOr(u"dflt_value"_s, u"Null"_s), column.text(u"pk"_s)));
        }
    }
    lines.sort();
    return lines;
}

class UpgradeTest : public BriskoTest {
protected:
    // Makes a file of `version` the session's database.
    QString openOld(const QString &version) {
        const QString path = tempPath(u"old.db"_s);
        olddatabase::create(path, version);
        session().dbPath = path;
        setConnectionString(path);
        return path;
    }
    // Runs `sql` on the file at `path` and commits it.
    static void runOn(const QString &path, const QString &sql, const db::Params &values = {}) {
        db::Transaction transaction(path);
        db::execute(sql, values);
        transaction.commit();
    }
    // Closes and deletes the file and its backup, for the next case of a loop.
    static void discard(const QString &path) {
        db::closeConnection();
        QFile::remove(path);
        QFile::remove(path + u".bak"_s);
    }
    QString dbVersion(const QString &path) {
        return rowsOf(path, u"SELECT dbVersion FROM tblSystem"_s);
    }
    static QString updatedBox(const QString &path) {
        return u"Update Complete | Your database has been updated to 4.2.5.  A backup was made to "_s +
               path + u".bak | Information"_s;
    }
};

class UpgradeFromEveryVersion : public UpgradeTest, public ::testing::WithParamInterface<QString> {
protected:
    // True when the file started out older than `version`.
    bool before(const QString &version) const {
        QStringList chain = olddatabase::versions();
        chain.append(u"4.2.5"_s);
        return chain.indexOf(GetParam()) < chain.indexOf(version);
    }
    static QString either(bool condition, const QString &then, const QString &otherwise) {
        return condition ? then : otherwise;
    }
};

// The file ends with the schema of a new file, the data the steps give it,
// and a backup of what it was.
TEST_P(UpgradeFromEveryVersion, ReachesTheNewSchemaWithItsDataMoved) {
    const QString path = openOld(GetParam());
    const QString untouched = tempPath(u"untouched.db"_s);
    olddatabase::create(untouched, GetParam());

    EXPECT_TRUE(dbUpdater::updateDatabase());

    EXPECT_EQ(schemaOf(path), schemaOf(databasePath()));
    EXPECT_EQ(schemaOf(path + u".bak"_s), schemaOf(untouched));
    EXPECT_EQ(boxes().lines(), QStringList{updatedBox(path)});
    EXPECT_FALSE(process().ended());
    EXPECT_EQ(session().dbVersionFound, u"4.2.5"_s);

    EXPECT_EQ(rowsOf(path, u"SELECT methodName FROM tblPayMethod ORDER BY payMethodID"_s),
              u"Cash;Check;Credit Card;PayPal;Money Order"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT paymentType FROM tblReceipt ORDER BY receiptID"_s),
              either(before(u"1.4.0"_s), u"1;2;0;3;4;17"_s, u"0;1;2;3;4;7"_s));
    EXPECT_EQ(rowsOf(path, u"SELECT defaultPaymentType, currencySymbol, customField1, dbVersion, "
                           u"tagline, customCurrency FROM tblSystem"_s),
              either(before(u"1.4.0"_s), u"0,"_s, u"2,"_s) +
                  either(GetParam().isEmpty(), u"36,"_s, u"163,"_s) +
                  either(before(u"1.4.0"_s), u","_s, u"Job No.,"_s) + u"4.2.5,Null,Null"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT resetNumberEOY, requireAddress, restrictAccess, hideSalesTax, "
                           u"hideAcctBalance, useAutoComplete, hideDiscountField, isTaxExempt, "
                           u"otherFieldName, usePOSPrinter FROM tblSystem"_s),
              either(before(u"3.0"_s), u"1,1,"_s, u"0,0,"_s) +
                  either(before(u"4.0"_s), u"0,"_s, u"1,"_s) +
                  either(before(u"4.1.2"_s), u"0,1,"_s, u"1,0,"_s) +
                  either(before(u"4.2.2"_s), u"1,"_s, u"0,"_s) +
                  either(before(u"4.2.4"_s), u"0,0,Other,"_s, u"1,1,Misc,"_s) + u"0"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT customField1, customField6, accountBalance, serviceID, "
                           u"voidReason FROM tblReceipt WHERE receiptID = 1"_s),
              either(before(u"1.4.0"_s), u",,"_s, u"J-7,Null,"_s) +
                  either(before(u"3.0"_s), u"0,"_s, u"50000,"_s) +
                  either(before(u"4.0.3"_s), u"0,"_s, u"3,"_s) + u"Null"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT email FROM tblPayee"_s),
              either(before(u"4.1.2"_s), u";"_s, u"ann@example.org;ann@example.org"_s));
    EXPECT_EQ(rowsOf(path, u"SELECT canRunReports FROM tblUser"_s),
              before(u"4.0"_s) ? u""_s : either(before(u"4.2.0"_s), u"1"_s, u"0"_s));
}

INSTANTIATE_TEST_SUITE_P(, UpgradeFromEveryVersion, ::testing::ValuesIn(olddatabase::versions()),
                         [](const ::testing::TestParamInfo<QString> &info) {
                             return info.param.isEmpty()
                                        ? std::string("Unversioned")
                                        : "From_" +
                                              QString(info.param).replace(u'.', u'_').toStdString();
                         });

// Versions are compared as text and matched by equality: one in no step is
// only stamped, one that sorts at or above the current one is left alone.
TEST_F(UpgradeTest, VersionsOutsideTheChain) {
    for (const QString &found : {u"4.1.0"_s, u"10.0"_s}) {
        const QString path = openOld(u"4.1.2"_s);
        runOn(path, u"UPDATE tblSystem SET dbVersion = ?"_s, {found});
        EXPECT_TRUE(dbUpdater::updateDatabase());
        EXPECT_EQ(dbVersion(path), u"4.2.5"_s) << found.toStdString();
        EXPECT_FALSE(schemaOf(path).join(u' ').contains(u"canRunReports"_s));
        EXPECT_EQ(boxes().lines().last(), updatedBox(path));
        discard(path);
    }
    boxes().shown.clear();

    const QString path = openOld(u"4.2.4"_s);
    runOn(path, u"UPDATE tblSystem SET dbVersion = '4.3'"_s);
    const QByteArray before = fileBytes(path);
    EXPECT_TRUE(dbUpdater::updateDatabase());
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_FALSE(QFile::exists(path + u".bak"_s));
    EXPECT_TRUE(boxes().shown.isEmpty());

    session().dbPath = databasePath(); // a new file is current already
    setConnectionString(databasePath());
    EXPECT_TRUE(dbUpdater::updateDatabase());
    EXPECT_FALSE(QFile::exists(databasePath() + u".bak"_s));
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(UpgradeTest, SharedFileAsksFirstAndCancelLeavesItUntouched) {
    const QString path = openOld(u"3.0"_s);
    session().useSharedFile = true;
    const QByteArray before = fileBytes(path);
    boxes().answers.append({Dialogs::Answer::Cancel});

    EXPECT_FALSE(dbUpdater::updateDatabase());
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Upgrade Warning | CAUTION!!!!  You are using a shared Brisko "
                           u"database.  If you upgrade this database, then all computers using "
                           u"this shared database must be upgraded before using Brisko. | "
                           u"Exclamation"_s,
                           u"Upgrade Aborted | The Brisko database was not updated.  This program "
                           u"will close. | Information"_s}));
    EXPECT_EQ(process().endProgramCalls, 1);
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_FALSE(QFile::exists(path + u".bak"_s));

    boxes().shown.clear();
    EXPECT_TRUE(dbUpdater::updateDatabase()); // OK this time
    EXPECT_EQ(boxes().titles(), (QStringList{u"Upgrade Warning"_s, u"Update Complete"_s}));
    EXPECT_EQ(dbVersion(path), u"4.2.5"_s);
}

// A step that fails half-way leaves the file byte for byte as it was, shows
// the error and ends the program; the next start finds the old file.
TEST_F(UpgradeTest, FailureHalfWayLeavesTheFileAsItWas) {
    const struct {
        const char *version;
        const char *obstacle;
        const char *reason;
    } cases[] = {
        {"1.2.5",
         "CREATE TRIGGER refuse BEFORE UPDATE ON tblReceipt BEGIN SELECT RAISE(ABORT, "
         "'receipts are read-only'); END",
         "receipts are read-only"},
        {"1.4.0", "CREATE VIEW tblService AS SELECT 1", "already exists"},
    };
    for (const auto &test : cases) {
        const QString path = openOld(QString::fromLatin1(test.version));
        runOn(path, QString::fromLatin1(test.obstacle));
        const QByteArray before = fileBytes(path);

        EXPECT_FALSE(dbUpdater::updateDatabase());
        EXPECT_EQ(fileBytes(path), before) << test.version;
        ASSERT_EQ(boxes().shown.size(), 1);
        EXPECT_EQ(boxes().lines().first().section(u":  "_s, 0, 0),
                  u"Error | Error while trying to update your database.  Please contact Tolveran "
                  u"Systems support with this error"_s);
        EXPECT_TRUE(boxes().lines().first().contains(QLatin1String(test.reason)));
        EXPECT_TRUE(boxes().lines().first().endsWith(u"| Critical"_s));
        EXPECT_EQ(process().endProcessCalls, 1);

        boxes().shown.clear();
        process().endProcessCalls = 0;
        discard(path);
    }
}

// At start-up the chain runs before the company settings are read.
TEST_F(UpgradeTest, StartUpUpgradesBeforeReadingTheCompany) {
    const QString path = tempPath(u"old.db"_s);
    olddatabase::create(path, u"4.2.4"_s);
    Utility::RegSetString(SettingsKey::lastDB, path);
    resetSession();

    ASSERT_TRUE(modMain::Initialise());
    EXPECT_EQ(company().companyName, u"Old Shop"_s);
    EXPECT_EQ(boxes().titles().first(), u"Update Complete"_s);
    EXPECT_EQ(dbVersion(path), u"4.2.5"_s);
}

} // namespace
