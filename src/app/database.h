#pragma once

#include "app/currency.h"

#include <QDateTime>
#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>

class QSqlQuery;

// The database session. Every operation runs its statement with bound values
// on one connection to the file named by the session's connection string. The
// connection stays open and keeps its prepared statements, but holds no lock
// between statements: each operation stands alone (autocommit), so that
// several machines can share one file. When the connection string names
// another file, the next operation opens that one. A caller that needs several
// operations to land together opens a db::Transaction; operations run while it
// stands join it.
//
// The statements are SQLite's. Where older statements used another dialect the
// mapping lives here, in one place: "TOP n" becomes "LIMIT ?", a "#date#"
// literal becomes a bound date text, and "SELECT @@IDENTITY" becomes
// "INSERT ... RETURNING key" run through insertReturningKey().
namespace db {

// A value bound to a statement's "?". Money goes in as ten-thousandths, dates
// as ISO text, flags as 1 or 0.
class Param {
public:
    Param(int value)
        : m_value(value) {}
    Param(qint64 value)
        : m_value(value) {}
    Param(double value)
        : m_value(value) {}
    Param(bool flag)
        : m_value(flag ? 1 : 0) {}
    // A text is never Null, even an empty one: Null is asked for with nullptr.
    Param(const QString &text)
        : m_value(text.isNull() ? QString(u""_qs) : text) {}
    Param(const char *text)
        : m_value(QString::fromUtf8(text)) {}
    Param(Currency amount)
        : m_value(amount.units()) {}
    Param(const QDateTime &moment);
    Param(const QDate &day);
    Param(std::nullptr_t)
        : m_value() {}

    const QVariant &value() const { return m_value; }

private:
    QVariant m_value;
};
using Params = QList<Param>;

// The stored text of a date: "yyyy-MM-dd HH:mm:ss".
QString dateText(const QDateTime &moment);
QString dateText(const QDate &day); // the day at midnight

// One row copied out of a result. The typed readers fail with the runtime's
// "Invalid use of Null" when the column is Null, as the old code did. Reading
// a column that the row does not have is a programming error, raised as
// RuntimeError::NoSuchColumn with a message that names the column.
class Row {
public:
    Row() = default;
    explicit Row(QSqlRecord record)
        : m_record(std::move(record)) {}

    bool contains(const QString &column) const { return m_record.contains(column); }
    bool isNull(const QString &column) const;
    QVariant value(const QString &column) const;

    QString text(const QString &column) const;
    qint32 int32(const QString &column) const;
    qint16 int16(const QString &column) const;
    double real(const QString &column) const;
    Currency currency(const QString &column) const;
    QDateTime dateTime(const QString &column) const;

    // The text of a column, or `fallback` when it is Null.
    QString textOr(const QString &column, const QString &fallback) const;

private:
    QVariant field(const QString &column) const;    // the value; the column must exist
    QVariant required(const QString &column) const; // the same, and not Null

    QSqlRecord m_record;
};

// A disconnected result: every row was read before the connection closed.
// Callers walk it with eof()/moveNext() or a range-for.
class Snapshot {
public:
    Snapshot() = default;
    explicit Snapshot(QList<Row> rows)
        : m_rows(std::move(rows)) {}

    bool eof() const { return m_position >= m_rows.size(); }
    void moveNext() { ++m_position; }
    const Row &current() const { return m_rows.at(m_position); }
    qsizetype size() const { return m_rows.size(); }
    bool isEmpty() const { return m_rows.isEmpty(); }
    const Row &at(qsizetype index) const { return m_rows.at(index); }

    QList<Row>::const_iterator begin() const { return m_rows.cbegin(); }
    QList<Row>::const_iterator end() const { return m_rows.cend(); }

private:
    QList<Row> m_rows;
    qsizetype m_position = 0;
};

// Reads the first row of a statement, or nothing when it returns none.
std::optional<Row> readFirst(const QString &sql, const Params &params = {});

// Reads every row of a statement into a snapshot.
Snapshot select(const QString &sql, const Params &params = {});

// Runs a statement that returns no rows; gives the number of rows it changed.
int execute(const QString &sql, const Params &params = {});

// Runs an "INSERT ... RETURNING key" and gives the new key.
qint64 insertReturningKey(const QString &sql, const Params &params = {});

// Closes the session's connection and forgets its prepared statements; the
// next operation opens the file again. Called before the file is replaced or
// another one is opened. Not while a Transaction stands on the session's file.
void closeConnection();

class Connection;

// `text` ready to stand in a LIKE pattern: the wildcards '%' and '_', and the
// backslash that escapes them, are escaped with a backslash so that they
// match themselves. The statement ends the LIKE with ESCAPE '\'.
QString escapeLike(const QString &text);

// The current row of a statement by column position, as forEachRow hands it
// on. The typed readers follow Row's rules.
class Cells {
public:
    explicit Cells(const QSqlQuery &query)
        : m_query(query) {}

    bool isNull(int column) const;
    QString text(int column) const;
    qint32 int32(int column) const;
    Currency currency(int column) const;
    QDateTime dateTime(int column) const;

private:
    QVariant required(int column) const;

    const QSqlQuery &m_query;
};

// Hands the rows of a statement to `visit` one at a time, keeping none: for
// long lists read once into a model, where a Snapshot's copy of every row
// with its column names costs more than the engine's walk. The statement
// names its columns, and `visit` reads them by position.
void forEachRow(const QString &sql, const Params &params,
                const std::function<void(const Cells &)> &visit);

// The bound value of a "LIKE ? ESCAPE '\\'" that finds `text` anywhere in the
// column: '%', '_' and '\\' in the text are escaped (escapeLike), so that each matches itself.
QString containingPattern(const QString &text);

// Groups the operations run while it stands into one transaction on one
// connection: BEGIN IMMEDIATE now, COMMIT on commit(), ROLLBACK when it goes
// out of scope uncommitted. A Transaction opened inside another one joins it.
class Transaction {
public:
    enum class Open { Existing, CreateIfMissing };

    // On the session's database file.
    Transaction();
    // On the file at `path`; CreateIfMissing makes a new, empty file first.
    explicit Transaction(const QString &path, Open open = Open::Existing);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    std::unique_ptr<Connection> m_ownConnection; // on a file other than the session's
    bool m_owner = false;
    bool m_done = false;
};

} // namespace db
