#include "admin/dbupdater.h"

#include "admin/databasecopy.h"
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "app/startup.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/processcontrol.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace dbUpdater {
namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("dbUpdater", text);
}

// The column types the steps ask for, as the older releases named them. Sizes
// and "allow zero length" have no counterpart in SQLite: a text column holds
// any length, the empty text included.
enum class Type { VarWChar, Integer, LongVarWChar, Currency, Date };

// Schema changes of the steps, mapped onto SQLite in this one place.
namespace catalogue {

QString sqlType(Type type) {
    switch (type) {
    case Type::Integer:
    case Type::Currency: // ten-thousandths
        return u"INTEGER"_s;
    case Type::VarWChar:
    case Type::LongVarWChar:
    case Type::Date: // "yyyy-MM-dd HH:mm:ss"
        break;
    }
    return u"TEXT"_s;
}

struct Column {
    const char *name;
    Type type;
};

void addColumn(const char *table, const Column &column) {
    db::execute(u"ALTER TABLE %1 ADD COLUMN %2 %3"_s.arg(
        QLatin1String(table), QLatin1String(column.name), sqlType(column.type)));
}

void addColumns(const char *table, std::initializer_list<Column> columns) {
    for (const Column &column : columns)
        addColumn(table, column);
}

// A table whose first column is an auto-numbered primary key.
void createTable(const char *table, const char *key, std::initializer_list<Column> columns) {
    QStringList definitions{QLatin1String(key) + u" INTEGER PRIMARY KEY AUTOINCREMENT"_s};
    for (const Column &column : columns)
        definitions.append(QLatin1String(column.name) + u' ' + sqlType(column.type));
    db::execute(u"CREATE TABLE %1 (%2)"_s.arg(QLatin1String(table), definitions.join(u", "_s)));
}

} // namespace catalogue

using catalogue::addColumns;
using catalogue::createTable;

// The assignments gathered for the one UPDATE on tblSystem that closes the
// chain, with the new version always last.
class ClosingUpdate {
public:
    void add(const QString &assignments) {
        if (m_hasItem)
            m_sql += u',';
        m_sql += assignments;
        m_hasItem = true;
    }

    void execute(const QString &version) {
        if (m_hasItem)
            m_sql += u',';
        m_sql += u" dbVersion=?"_s;
        db::execute(m_sql, {version});
    }

private:
    QString m_sql = u"UPDATE tblSystem SET "_s;
    bool m_hasItem = false;
};

void to125(ClosingUpdate &closing) {
    db::execute(u"ALTER TABLE tblSystem "_s + u"ADD COLUMN currencySymbol INTEGER DEFAULT 36 "_s);
    addColumns("tblSystem", {{"tagline", Type::VarWChar}});
    closing.add(u"currencySymbol = 36"_s);
}

void to130(ClosingUpdate &) {
    addColumns("tblSystem", {{"dbVersion", Type::VarWChar}});
    addColumns("tblReceipt_Product", {{"extDesc", Type::VarWChar}});
}

// What the payment type 0 to 4 of the older releases became, once payment
// methods became rows of their own; anything else becomes "Other".
qint64 newDefaultPaymentType(qint64 old) {
    constexpr qint64 kNewType[] = {1, 2, 0, 3, 4};
    return old >= 0 && old < std::ssize(kNewType) ? kNewType[old] : 0;
}

void movePaymentTypes() {
    db::execute(u"UPDATE tblReceipt SET paymentType=paymentType+10"_s);
    qint64 next = 1;
    for (qint64 old = 10; old <= 14; ++old) {
        const qint64 moved = old == 12 ? 0 : next++; // the free-text kind is "Other"
        db::execute(u"UPDATE tblReceipt SET paymentType=? WHERE paymentType=?"_s, {moved, old});
    }
    const auto row = db::readFirst(u"SELECT defaultPaymentType FROM tblSystem"_s);
    const qint64 old = row && !row->isNull(u"defaultPaymentType"_s)
                           ? row->value(u"defaultPaymentType"_s).toLongLong()
                           : 0;
    db::execute(u"UPDATE tblSystem SET defaultPaymentType = ?"_s, {newDefaultPaymentType(old)});
}

void to140(ClosingUpdate &) {
    const QString blankCustomFields =
        u" SET customField1 = '', customField2 = '', customField3= '', customField4 = '', "
        u"customField5 = '', customField6 = ''"_s;
    for (const char *table : {"tblSystem", "tblReceipt"}) {
        for (int field = 1; field <= 6; ++field) {
            const QByteArray name = "customField" + QByteArray::number(field);
            addColumns(table, {{name.constData(), Type::VarWChar}});
        }
    }
    createTable("tblPayMethod", "payMethodID",
                {{"methodName", Type::VarWChar}, {"payMethodStatus", Type::Integer}});
    for (const char *method : {"Cash", "Check", "Credit Card", "PayPal", "Money Order"}) {
        db::execute(u"INSERT INTO tblPayMethod "_s + u"(methodName, payMethodStatus) "_s +
                        u"VALUES(?, 1)"_s,
                    {method});
    }
    movePaymentTypes();
    db::execute(u"UPDATE tblSystem"_s + blankCustomFields);
    db::execute(u"UPDATE tblReceipt"_s + blankCustomFields);
}

void to150(ClosingUpdate &) {
    createTable("tblService", "serviceID",
                {{"shortName", Type::VarWChar},
                 {"longDesc", Type::LongVarWChar},
                 {"defaultCost", Type::Currency}});
}

void to203(ClosingUpdate &) {
    addColumns("tblSystem", {{"customCurrency", Type::VarWChar}});
}

void to210(ClosingUpdate &) {
    addColumns("tblPayee", {{"lastPurchaseDate", Type::Date}});
    addColumns("tblReceipt", {{"accountBalance", Type::Currency}});
}

void to30(ClosingUpdate &closing) {
    addColumns("tblSystem", {{"resetNumberEOY", Type::Integer}, {"requireAddress", Type::Integer}});
    closing.add(u"resetNumberEOY=1,requireAddress=1"_s);
    db::execute(u"UPDATE tblReceipt SET accountBalance = 0"_s);
}

void to40(ClosingUpdate &closing) {
    addColumns("tblSystem", {{"restrictAccess", Type::Integer}});
    createTable("tblUser", "userID",
                {{"username", Type::VarWChar},
                 {"password", Type::VarWChar},
                 {"canEdit", Type::Integer},
                 {"canDelete", Type::Integer},
                 {"canVoid", Type::Integer},
                 {"status", Type::Integer},
                 {"isAdmin", Type::Integer}});
    closing.add(u"restrictAccess=0"_s);
}

void to403(ClosingUpdate &) {
    addColumns("tblReceipt", {{"serviceID", Type::Integer}, {"voidReason", Type::LongVarWChar}});
    db::execute(u"UPDATE tblReceipt SET serviceID = 0"_s);
}

void to412(ClosingUpdate &) {
    addColumns("tblPayee", {{"email", Type::VarWChar}});
    addColumns("tblSystem", {{"hideSalesTax", Type::Integer}, {"hideAcctBalance", Type::Integer}});
    db::execute(u"UPDATE tblPayee SET email = ''"_s);
    db::execute(u"UPDATE tblSystem SET hideSalesTax=0, hideAcctBalance=1"_s);
}

void to420(ClosingUpdate &) {
    addColumns("tblUser", {{"canRunReports", Type::Integer}});
    db::execute(u"UPDATE tblUser SET canRunReports = 1"_s);
}

void to422(ClosingUpdate &) {
    addColumns("tblSystem", {{"useAutoComplete", Type::Integer}});
    db::execute(u"UPDATE tblSystem SET useAutoComplete = 1"_s);
}

void to424(ClosingUpdate &) {
    addColumns("tblSystem", {{"hideDiscountField", Type::Integer},
                             {"isTaxExempt", Type::Integer},
                             {"otherFieldName", Type::VarWChar}});
    db::execute(
        u"UPDATE tblSystem SET hideDiscountField = 0,isTaxExempt = 0, otherFieldName='Other' "_s);
}

void to425(ClosingUpdate &) {
    addColumns("tblSystem", {{"usePOSPrinter", Type::Integer}});
    db::execute(u"UPDATE tblSystem SET usePOSPrinter = 0"_s);
}

struct Step {
    const char16_t *from;
    const char16_t *to;
    void (*run)(ClosingUpdate &);
};

// A step runs when the version reached so far is its "from", so that one
// pass takes a file through every later step. A version no step starts from
// runs none of them.
constexpr Step kSteps[] = {
    {u"", u"1.2.5", to125},      {u"1.2.5", u"1.3.0", to130}, {u"1.3.0", u"1.4.0", to140},
    {u"1.4.0", u"1.5.0", to150}, {u"1.5.0", u"2.0.3", to203}, {u"2.0.3", u"2.1.0", to210},
    {u"2.1.0", u"3.0", to30},    {u"3.0", u"4.0", to40},      {u"4.0", u"4.0.3", to403},
    {u"4.0.3", u"4.1.2", to412}, {u"4.1.2", u"4.2.0", to420}, {u"4.2.0", u"4.2.2", to422},
    {u"4.2.2", u"4.2.4", to424}, {u"4.2.4", u"4.2.5", to425},
};

// Runs the steps from the session's dbVersionFound and stamps the file with
// `target`, all in one transaction.
void runChain(const QString &target) {
    Session &state = session();
    db::Transaction transaction(state.dbPath);
    QString version = state.dbVersionFound;
    ClosingUpdate closing;
    for (const Step &step : kSteps) {
        if (version == QStringView(step.from)) {
            step.run(closing);
            version = QString::fromUtf16(step.to);
        }
    }
    closing.execute(target);
    Schema::createIndexes(); // files of older releases came without them
    transaction.commit();
    state.dbVersionFound = version;
}

// Asks before a shared file is upgraded; false when the user said no.
bool confirmSharedUpgrade() {
    const auto answer = dialogs().message(
        tr("CAUTION!!!!  You are using a shared Brisko database.  If you upgrade this database, "
           "then all computers using this shared database must be upgraded before using Brisko."),
        tr("Upgrade Warning"), Dialogs::Icon::Exclamation, Dialogs::Buttons::OkCancel);
    return answer == Dialogs::Answer::Ok;
}

} // namespace

bool dbNeedsUpdate(const QString &connectionString) {
    Session &state = session();
    db::Transaction transaction(connectionString);
    for (const db::Row &column : db::select(u"PRAGMA table_info(tblSystem)"_s)) {
        if (column.value(u"name"_s).toString() == u"currencySymbol"_s)
            state.dbVersionFound = u"1.2.5"_s;
    }
    // A file older than the dbVersion column keeps the version learnt above.
    try {
        const auto row = db::readFirst(u"select dbVersion from tblSystem"_s);
        if (row && !row->isNull(u"dbVersion"_s))
            state.dbVersionFound = row->text(u"dbVersion"_s);
    } catch (const BriskoError &) {
    }
    // As text, code by code: "10.0" sorts below "4.2.5" and counts as old.
    return state.dbVersionFound.compare(QStringView(Schema::kCurrentVersion)) < 0;
}

bool updateDatabase() {
    Session &state = session();
    const QString target = QString::fromUtf16(Schema::kCurrentVersion);
    if (!dbNeedsUpdate(state.connectionString))
        return true;
    if (state.useSharedFile && !confirmSharedUpgrade()) {
        dialogs().message(tr("The Brisko database was not updated.  This program will close."),
                          tr("Upgrade Aborted"), Dialogs::Icon::Information);
        modMain::EndProgram();
        return false;
    }
    const QString backupPath = state.dbPath + u".bak"_s;
    try {
        db::closeConnection();
        DatabaseCopy::copy(state.dbPath, backupPath);
        if (state.dbVersionFound != target)
            runChain(target);
    } catch (const BriskoError &error) {
        // The transaction has rolled back: the file is as it was before.
        dialogs().message(tr("Error while trying to update your database.  Please contact "
                             "Tolveran Systems support with this error:  ") +
                              error.description(),
                          tr("Error"), Dialogs::Icon::Critical);
        processControl().endProcess();
        return false;
    }
    dialogs().message(tr("Your database has been updated to %1.  A backup was made to %2")
                          .arg(target, backupPath),
                      tr("Update Complete"), Dialogs::Icon::Information);
    return true;
}

} // namespace dbUpdater
