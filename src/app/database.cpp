#include "app/database.h"

#include "app/session.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <memory>
#include <unordered_map>

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

} // namespace

// An open connection to one database file, with its prepared statements kept
// for reuse. Every statement is reset as soon as its rows are read, so that the
// connection holds no lock between statements outside a transaction.
class Connection {
public:
    explicit Connection(const QString &path, bool createIfMissing = false)
        : m_path(path)
        , m_name(u"brisko-%1"_s.arg(++s_serial)) {
        // SQLite would quietly make an empty file; a missing database is an error.
        if (!createIfMissing && !QFileInfo(path).isFile()) {
            throw BriskoError(
                RuntimeError::DatabaseError,
                QCoreApplication::translate("Database", "Could not find file '%1'.").arg(path));
        }
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
        database.setDatabaseName(path);
        // Other machines may hold the file for a moment; wait rather than fail.
        database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
        try {
            if (!database.open())
                throw toError(database.lastError());
            // A file on a share wants the classic rollback journal and full sync.
            runOnce(u"PRAGMA journal_mode=DELETE"_s);
            runOnce(u"PRAGMA synchronous=FULL"_s);
        } catch (const BriskoError &) {
            database = QSqlDatabase();
            close();
            throw;
        }
    }

    ~Connection() { close(); }

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    const QString &path() const { return m_path; }

    // Runs `sql` on its prepared statement, preparing it on first use. The
    // caller reads the rows it needs and then calls finish() on the query.
    QSqlQuery &run(const QString &sql, const Params &params = {}) {
        QSqlQuery &query = prepared(sql);
        for (qsizetype index = 0; index < params.size(); ++index)
            query.bindValue(int(index), params.at(index).value());
        if (!query.exec()) {
            const QSqlError error = query.lastError();
            query.finish();
            throw toError(error);
        }
        return query;
    }

    // Runs a statement that is not worth keeping prepared.
    void runOnce(const QString &sql) {
        QSqlQuery query(QSqlDatabase::database(m_name, false));
        if (!query.exec(sql))
            throw toError(query.lastError());
    }

private:
    void close() {
        m_statements.clear();
        {
            QSqlDatabase database = QSqlDatabase::database(m_name, false);
            database.close();
        }
        QSqlDatabase::removeDatabase(m_name);
    }

    // Enough for every statement of a screen and the lists behind it; a
    // connection that has seen more starts its collection afresh.
    static constexpr qsizetype kMaxStatements = 64;

    QSqlQuery &prepared(const QString &sql) {
        auto found = m_statements.find(sql);
        if (found != m_statements.end())
            return found->second;
        if (qsizetype(m_statements.size()) >= kMaxStatements)
            m_statements.clear();
        QSqlQuery query(QSqlDatabase::database(m_name, false));
        query.setForwardOnly(true);
        if (!query.prepare(sql))
            throw toError(query.lastError());
        return m_statements.emplace(sql, std::move(query)).first->second;
    }

    static inline int s_serial = 0;
    QString m_path;
    QString m_name;
    std::unordered_map<QString, QSqlQuery> m_statements;
};

namespace {

// The session's connection, opened on first use and kept while the session's
// file stays the same.
std::unique_ptr<Connection> s_session;
// The connection of the transaction that stands, if any.
Connection *s_transaction = nullptr;

Connection &sessionConnection() {
    const QString &path = session().connectionString;
    if (s_session && s_session->path() == path)
        return *s_session;
    closeConnection();
    s_session = std::make_unique<Connection>(path);
    // Closed with the application, while Qt's SQL drivers are still there.
    static const bool cleanupRegistered = [] {
        qAddPostRoutine(closeConnection);
        return true;
    }();
    Q_UNUSED(cleanupRegistered);
    return *s_session;
}

// Runs `work` on the standing transaction's connection or on the session's.
template <typename Work> auto withConnection(Work &&work) {
    return work(s_transaction ? *s_transaction : sessionConnection());
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

QVariant Row::field(const QString &column) const {
    const int index = m_record.indexOf(column);
    if (index < 0) {
        throw BriskoError(RuntimeError::NoSuchColumn,
                          QCoreApplication::translate(
                              "Database", "Programming error: the row has no column named '%1'.")
                              .arg(column));
    }
    return m_record.value(index);
}

QVariant Row::required(const QString &column) const {
    QVariant value = field(column);
    if (value.isNull())
        raiseInvalidUseOfNull();
    return value;
}

bool Row::isNull(const QString &column) const {
    return field(column).isNull();
}

QVariant Row::value(const QString &column) const {
    return field(column);
}

QString Row::text(const QString &column) const {
    return required(column).toString();
}

qint32 Row::int32(const QString &column) const {
    return required(column).toInt();
}

qint16 Row::int16(const QString &column) const {
    const qlonglong value = required(column).toLongLong();
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        raiseOverflow();
    return static_cast<qint16>(value);
}

double Row::real(const QString &column) const {
    return required(column).toDouble();
}

Currency Row::currency(const QString &column) const {
    return Currency::fromUnits(required(column).toLongLong());
}

QDateTime Row::dateTime(const QString &column) const {
    return QDateTime::fromString(required(column).toString(), QString::fromLatin1(kDateFormat));
}

QString Row::textOr(const QString &column, const QString &fallback) const {
    const QVariant value = field(column);
    return value.isNull() ? fallback : value.toString();
}

std::optional<Row> readFirst(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) -> std::optional<Row> {
        QSqlQuery &query = connection.run(sql, params);
        std::optional<Row> row;
        if (query.next())
            row = Row(query.record());
        query.finish();
        return row;
    });
}

Snapshot select(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) {
        QSqlQuery &query = connection.run(sql, params);
        QList<Row> rows;
        while (query.next())
            rows.append(Row(query.record()));
        query.finish();
        return Snapshot(std::move(rows));
    });
}

int execute(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) {
        QSqlQuery &query = connection.run(sql, params);
        const int changed = query.numRowsAffected();
        query.finish();
        return changed;
    });
}

qint64 insertReturningKey(const QString &sql, const Params &params) {
    return withConnection([&](Connection &connection) {
        QSqlQuery &query = connection.run(sql, params);
        const bool returned = query.next();
        const qint64 key = returned ? query.value(0).toLongLong() : 0;
        query.finish();
        if (!returned)
            throw BriskoError(
                RuntimeError::DatabaseError,
                QCoreApplication::translate("Database", "The new row's key was not returned."));
        return key;
    });
}

void closeConnection() {
    Q_ASSERT(!s_session || s_transaction != s_session.get());
    s_session.reset();
}

QString escapeLike(const QString &text) {
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'\\' || character == u'%' || character == u'_')
            escaped += u'\\';
        escaped += character;
    }
    return escaped;
}

bool Cells::isNull(int column) const {
    return m_query.isNull(column);
}

QVariant Cells::required(int column) const {
    if (m_query.isNull(column))
        raiseInvalidUseOfNull();
    return m_query.value(column);
}

QString Cells::text(int column) const {
    return required(column).toString();
}

qint32 Cells::int32(int column) const {
    return required(column).toInt();
}

Currency Cells::currency(int column) const {
    return Currency::fromUnits(required(column).toLongLong());
}

QDateTime Cells::dateTime(int column) const {
    return QDateTime::fromString(required(column).toString(), QString::fromLatin1(kDateFormat));
}

void forEachRow(const QString &sql, const Params &params,
                const std::function<void(const Cells &)> &visit) {
    withConnection([&](Connection &connection) {
        QSqlQuery &query = connection.run(sql, params);
        // The statement is reset even when `visit` throws, so that no read
        // lock outlives the walk.
        const auto finish = qScopeGuard([&query] { query.finish(); });
        const Cells cells(query);
        while (query.next())
            visit(cells);
    });
}

QString containingPattern(const QString &text) {
    return u"%"_s + escapeLike(text) + u"%"_s;
}

Transaction::Transaction()
    : Transaction(session().connectionString) {}

// On the session's own file the transaction runs on the session's connection;
// on any other file on a connection of its own, closed when it ends.
Transaction::Transaction(const QString &path, Open open) {
    if (s_transaction)
        return;
    Connection *connection = nullptr;
    if (path == session().connectionString && open == Open::Existing) {
        connection = &sessionConnection();
    } else {
        m_ownConnection = std::make_unique<Connection>(path, open == Open::CreateIfMissing);
        connection = m_ownConnection.get();
    }
    connection->runOnce(u"BEGIN IMMEDIATE"_s);
    s_transaction = connection;
    m_owner = true;
}

Transaction::~Transaction() {
    if (!m_owner)
        return;
    Connection *connection = s_transaction;
    s_transaction = nullptr;
    if (!m_done) {
        try {
            connection->runOnce(u"ROLLBACK"_s);
        } catch (const BriskoError &) {
            // SQLite has already rolled back after the error that brought us here.
        }
    }
}

void Transaction::commit() {
    if (!m_owner || m_done)
        return;
    s_transaction->runOnce(u"COMMIT"_s);
    m_done = true;
}

} // namespace db
