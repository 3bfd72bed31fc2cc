#include "receipts/receipt.h"

#include "app/company.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

// The runtime's error for a text position that is not there.
constexpr int kInvalidArgumentError = 5;

[[noreturn]] void raiseInvalidArgument() {
    throw BriskoError(kInvalidArgumentError,
                      QCoreApplication::translate("Runtime", "Invalid procedure call or argument"));
}

// "prefix[zeros]suffix": the first '[' and the first ']' behind it hold the
// number's pattern; prefix and suffix are date patterns of `today`.
QString renderReceiptNumber(const QString &format, const QString &number, const QDate &today) {
    const qsizetype open = format.indexOf(u'[');
    if (open < 0)
        raiseInvalidArgument();
    const qsizetype close = format.indexOf(u']', open);
    if (close < 0)
        raiseInvalidArgument();

    const QString pattern = format.mid(open + 1, close - open - 1);
    QString prefix = format.left(open);
    QString suffix = format.mid(close + 1);
    if (!prefix.isEmpty())
        prefix = Runtime::formatDate(today, prefix);
    if (!suffix.isEmpty())
        suffix = Runtime::formatDate(today, suffix);
    return prefix + Runtime::formatNumber(number, pattern) + suffix;
}

} // namespace

namespace modMain {

QString formatReceiptNumber(const QString &number) {
    return formatReceiptNumber(number, QDate::currentDate());
}

// A format the program cannot use leaves no way to number receipts: the
// program ends, whatever the caller was doing.
QString formatReceiptNumber(const QString &number, const QDate &today) {
    const QString &format = company().numberFormat;
    try {
        return renderReceiptNumber(format, number, today);
    } catch (const BriskoError &) {
        dialogs().message(
            QCoreApplication::translate(
                "modMain", "Invalid receipt number format:  %1.  This program can not continue")
                .arg(format),
            QCoreApplication::translate("modMain", "Error"), Dialogs::Icon::Critical,
            Dialogs::Buttons::Ok);
        EndProgram();
        return QString();
    }
}

} // namespace modMain
