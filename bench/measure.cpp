#include "measure.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace bench {

double medianMicroseconds(const std::function<void()> &work, int runs, int batch) {
    work();
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        for (int call = 0; call < batch; ++call)
            work();
        times.push_back(double(timer.nsecsElapsed()) / 1000 / batch);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void printHeader() {
    std::printf("%-46s %12s %12s %7s\n", "case", "brisko", "raw", "ratio");
}

namespace {

void printTime(double microseconds) {
    if (microseconds < 1000)
        std::printf(" %9.1f µs", microseconds);
    else
        std::printf(" %9.2f ms", microseconds / 1000);
}

} // namespace

void printCase(const char *what, double briskoMicroseconds, double rawMicroseconds) {
    std::printf("%-46s", what);
    printTime(briskoMicroseconds);
    printTime(rawMicroseconds);
    std::printf(" %6.2fx\n", briskoMicroseconds / rawMicroseconds);
    std::fflush(stdout);
}

RawStatement::RawStatement(const QString &path, const QString &sql)
    : m_name(u"raw baseline %1"_s.arg(quintptr(this))) {
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
    database.setDatabaseName(path);
    if (!database.open())
        qFatal("%s", qPrintable(database.lastError().text()));
    m_query = QSqlQuery(database);
    m_query.setForwardOnly(true);
    if (!m_query.prepare(sql))
        qFatal("%s", qPrintable(m_query.lastError().text()));
}

RawStatement::~RawStatement() {
    m_query = QSqlQuery();
    QSqlDatabase::database(m_name, false).close();
    QSqlDatabase::removeDatabase(m_name);
}

QList<QSqlRecord> RawStatement::rows(const QVariantList &values) {
    for (qsizetype index = 0; index < values.size(); ++index)
        m_query.bindValue(int(index), values.at(index));
    m_query.exec();
    QList<QSqlRecord> result;
    while (m_query.next())
        result.append(m_query.record());
    m_query.finish();
    return result;
}

} // namespace bench
