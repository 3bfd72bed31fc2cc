// Writes receipts into a database without pause, as another machine on the
// share would: receiptwriter <database file>. Each receipt and its three
// lines land in one transaction; a line "saved" follows each. Runs until it
// is killed.
#include "app/database.h"
#include "app/session.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: receiptwriter <database file>\n");
        return 2;
    }
    setConnectionString(application.arguments().at(1));
    try {
        for (int number = 1;; ++number) {
            db::Transaction transaction;
            const qint64 receiptID = db::insertReturningKey(
                u"INSERT INTO tblReceipt (receiptNumber, amountDue) VALUES (?, 30000) "
                u"RETURNING receiptID"_s,
                {QString::number(number)});
            for (int line = 0; line < 3; ++line) {
                db::execute(u"INSERT INTO tblReceipt_Product (receiptID, unitTotal) "
                            u"VALUES (?, 10000)"_s,
                            {receiptID});
            }
            transaction.commit();
            std::printf("saved\n");
            std::fflush(stdout);
        }
    } catch (const BriskoError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
