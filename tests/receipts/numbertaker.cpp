// Takes receipt numbers from a shared database, as one more machine on the
// share would: numbertaker <database file> <year> <count>. Prints each number
// taken on a line of its own. A take that finds the lock busy for three
// seconds is tried again, as a user would save again.
#include "app/session.h"
#include "platform/briskoerror.h"
#include "receipts/receipt.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

constexpr int kAttemptsPerNumber = 5;
constexpr int kGiveUpError = -10001;

qint32 takeNumber(const QString &year) {
    for (int attempt = 1;; ++attempt) {
        try {
            return Receipt().getNextReceiptNumber(year);
        } catch (const BriskoError &error) {
            if (error.number() != kGiveUpError || attempt == kAttemptsPerNumber)
                throw;
        }
    }
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: numbertaker <database file> <year> <count>\n");
        return 2;
    }
    const QString &path = arguments.at(1);
    Session &state = session();
    state.dbPath = path;
    setConnectionString(path);
    state.useSharedFile = true;
    state.shareFileLocation = path;

    const int count = arguments.at(3).toInt();
    try {
        for (int taken = 0; taken < count; ++taken) {
            std::printf("%d\n", takeNumber(arguments.at(2)));
            std::fflush(stdout);
        }
    } catch (const BriskoError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
