#include "platform/diag.h"

#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QLocale>

void Diag::WriteLogEntry(const QString &message) const {
    if (!loggingEnabled)
        return;
    QFile file(logFilePath);
    if (!file.open(QIODevice::Append | QIODevice::Text)) {
        throw BriskoError(RuntimeError::DatabaseError,
                          QCoreApplication::translate("Diag", "Could not create log entry:  %1")
                              .arg(file.errorString()));
    }
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale;
    const QString line = QStringLiteral("[%1 %2]  %3\n")
                             .arg(locale.toString(now.date(), QLocale::ShortFormat),
                                  locale.toString(now.time(), QLocale::ShortFormat), message);
    file.write(line.toLocal8Bit());
}
