// Saves sales into a shared database, as one more machine on the share
// would: receiptsaver <database file> <count>. Prints each receipt number on
// a line of its own once its save is committed.
#include "app/company.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "samplesale.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: receiptsaver <database file> <count>\n");
        return 2;
    }
    const QString &path = arguments.at(1);
    Session &state = session();
    state.dbPath = path;
    setConnectionString(path);
    state.useSharedFile = true;
    state.shareFileLocation = path;

    const int count = arguments.at(2).toInt();
    try {
        modMain::loadCompanyInfo();
        const QString me = QString::number(QCoreApplication::applicationPid());
        for (int saved = 0; saved < count; ++saved) {
            ReceiptSave save = sampleSale(me + u'-' + QString::number(saved));
            save.save();
            std::printf("%s\n", qPrintable(save.receipt.receiptNumber));
            std::fflush(stdout);
        }
    } catch (const BriskoError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
