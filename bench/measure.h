#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QVariant>
#include <functional>

// Timing and the raw baselines every benchmark prints its figures beside.
namespace bench {

// The median time of one call of `work` in microseconds: `runs` timed runs of
// `batch` calls each, after one untimed call that warms the caches.
double medianMicroseconds(const std::function<void()> &work, int runs, int batch = 1);

// One line per case: what was timed, Brisko's figure, the raw figure and the
// ratio of the two.
void printHeader();
void printCase(const char *what, double briskoMicroseconds, double rawMicroseconds);

// The baseline: the same statement prepared once on a plain open QtSql
// connection, its rows read into records, with nothing of Brisko in between.
class RawStatement {
public:
    RawStatement(const QString &path, const QString &sql);
    ~RawStatement();
    RawStatement(const RawStatement &) = delete;
    RawStatement &operator=(const RawStatement &) = delete;

    QList<QSqlRecord> rows(const QVariantList &values);

private:
    QString m_name;
    QSqlQuery m_query;
};

} // namespace bench
