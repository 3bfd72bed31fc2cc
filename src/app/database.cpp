#include "app/database.h"

#include "app/briskoerror.h"
#include "app/session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace db {
namespace {

constexpr auto kDateFormat = "yyyy-MM-dd HH:mm:ss";

BriskoError toError(const QSqlError &error) {
    bool numeric = false;
    const int code = error.nativeErrorCode().toInt(&numeric);
    QString text = error.databaseText();
    if (text.isEmpty())
        text = error.text();
    return BriskoError(numeric ? code : RuntimeError::DatabaseError, text);
}

// One open connection to the session's file; closed and forgotten on destruction.
class Connection {
public:
    explicit Connection(const QString &path, bool createIfMissing = false)
        : m_name(u"brisko-%1"_s.arg(++s_serial)) {
        // SQLite would quietly make an empty file; a missing database is an error.
        if (!createIfMissing && !QFileInfo::exists(path)) {
            throw BriskoError(
                RuntimeError::DatabaseError,
                QCoreApplication::translate("Database", "Could not find file '%1'.").arg(path));
        }
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
        database.setDatabaseName(path);
        // Other machines may hold the file for a moment; wait rather than fail.
        database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
        if (!database.open())
            throw toError(database.lastError());
        // A file on a share wants the classic rollback journal and full sync.
        run(u"PRAGMA journal_mode=DELETE"_s);
        run(u"PRAGMA synchronous=FULL"_s);
    }

    ~Connection() {
        {
            QSqlDatabase database = QSqlDatabase::database(m_name, false);
            database.close();
        }
        QSqlDatabase::removeDatabase(m_name);
    }

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QSqlDatabase database() const { return QSqlDatabase::database(m_name, false); }

    QSqlQuery run(const QString &sql, const Params &params = {}) {
        QSqlQuery query(database());
        query.setForwardOnly(true);
        if (!query.prepare(sql))
            throw toError(query.lastError());
        for (const Param &param : params)
            query.addBindValue(param.value());
        if (!query.exec())
            throw toError(query.lastError());
        return query;
    }

private:
    static inline int s_serial = 0;
    QString m_name;
};

// The connection of the transaction that stands, if any.
Connection *s_transaction = nullptr;

// Runs `work` on the standing transaction's connection or on one of its own.
template <typename Work> auto withConnection(Work &&work) {
    if (s_transaction)
        return work(*s_transaction);
    Connection connection(session().connectionString);
    return work(connection);
}

} // namespace

Param::Param(const QDateTime &moment)
    : m_value(dateText(moment)) {}
Param::Param(const QDate &day)
    : m_value(dateText(day)) {}

QString dateText(const QDateTime &moment) {
    return moment.toString(QString::fromLatin1(kDateFormat));
}

QString dateText(const QDate &day) {
    return dateText(QDateTime(day, QTime(0, 0)));
}

bool Row::isNull(const QString &column) const {
    return m_record.isNull(column);
}

QVariant Row::value(const QString &column) const {
    return m_record.value(column);
}

static QVariant required(const QSqlRecord &record, const QString &column) {
    const QVariant value = record.value(column);
    if (value.isNull())
        raiseInvalidUseOfNull();
    return value;
}

QString Row::text(const QString &column) const {
    return required(m_record, column).toString();
}

qint32 Row::int32(const QString &column) const {
    return required(m_record, column).toInt();
}

qint16 Row::int16(const QString &column) const {
    const qlonglong value = required(m_record, column).toLongLong();
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        raiseOverflow();
    return static_cast<qint16>(value);
}

double Row::real(const QString &column) const {
    return required(m_record, column).toDouble();
}

Currency Row::currency(const QString &column) const {
    return Currency::fromUnits(required(m_record, column).toLongLong());
}

QDateTime Row::dateTime(const QString &column) const {
    return QDateTime::fromString(required(m_record, column).toString(),
                                 QString::fromLatin1(kDateFormat));
}

QString Row::textOr(const QString &column, const QString &fallback) const {
    return isNull(column) ? fallback : m_record.value(column).toString();
}

std::optional<Row> readFirst(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) -> std::optional<Row> {
        QSqlQuery query = connection.run(sql, params);
        if (!query.next())
            return std::nullopt;
        return Row(query.record());
    });
}

Snapshot select(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) {
        QSqlQuery query = connection.run(sql, params);
        QList<Row> rows;
        while (query.next())
            rows.append(Row(query.record()));
        return Snapshot(std::move(rows));
    });
}

int execute(const QString &sql, const Params &params) {
    return withConnection(
        [&](Connection &connection) { return connection.run(sql, params).numRowsAffected(); });
}

qint64 insertReturningKey(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) {
        QSqlQuery query = connection.run(sql, params);
        if (!query.next())
            throw BriskoError(
                RuntimeError::DatabaseError,
                QCoreApplication::translate("Database", "The new row's key was not returned."));
        const qint64 key = query.value(0).toLongLong();
        query.finish();
        return key;
    });
}

Transaction::Transaction()
    : Transaction(session().connectionString) {}

Transaction::Transaction(const QString &path, Open open) {
    if (s_transaction)
        return;
    auto connection = std::make_unique<Connection>(path, open == Open::CreateIfMissing);
    connection->run(u"BEGIN IMMEDIATE"_s);
    s_transaction = connection.release();
    m_owner = true;
}

Transaction::~Transaction() {
    if (!m_owner)
        return;
    std::unique_ptr<Connection> connection(s_transaction);
    s_transaction = nullptr;
    if (!m_done) {
        QSqlQuery rollback(connection->database());
        rollback.exec(u"ROLLBACK"_s);
    }
}

void Transaction::commit() {
    if (!m_owner || m_done)
        return;
    s_transaction->run(u"COMMIT"_s);
    m_done = true;
}

} // namespace db
