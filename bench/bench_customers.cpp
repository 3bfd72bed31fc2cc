// Times what a person waits for in the customer part of the shop: the
// balance of a customer with 10,000 receipts, and the customer search over
// 100,000 customers, "Begins With" and "Retrieve All", each with its list
// filled and shown. Beside each figure stands the raw statement of the same
// work on a connection that is already open.
#include "customers/frmcustomerlist.h"
#include "customers/payee.h"
#include "measure.h"
#include "shop.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRuns = 11;
const QString kPrefix = u"Kar"_s; // about 2,500 customers begin so

void balance(const benchshop::Shop &shop) {
    const double brisko =
        bench::medianMicroseconds([&] { Payee().GetPayeeBalance(shop.busyCustomerID); }, kRuns);
    bench::RawStatement opening(shop.path,
                                u"SELECT * FROM tblReceipt WHERE payeeID = ? AND receiptType= 4"_s);
    bench::RawStatement others(
        shop.path, u"SELECT * FROM tblReceipt WHERE payeeID = ? AND receiptType <> 4"_s);
    const double raw = bench::medianMicroseconds(
        [&] {
            opening.rows({shop.busyCustomerID});
            others.rows({shop.busyCustomerID});
        },
        kRuns);
    bench::printCase("balance of a customer, 10,000 receipts", brisko, raw);
}

// Runs a search on the screen as a person does and waits until it shows.
double searchOnScreen(frmCustomerList &screen, const QString &button, const QString &text) {
    auto *name = screen.findChild<QLineEdit *>(u"txtName"_s);
    auto *command = screen.findChild<QPushButton *>(button);
    return bench::medianMicroseconds(
        [&] {
            name->setText(text);
            command->click();
            QApplication::processEvents();
        },
        kRuns);
}

void searches(const benchshop::Shop &shop) {
    frmCustomerList screen;
    screen.resize(900, 600);
    screen.show();
    QApplication::processEvents();

    bench::RawStatement beginsWith(
        shop.path, u"SELECT * FROM tblPayee WHERE payeeName LIKE ? ORDER BY payeeName"_s);
    bench::printCase("\"Begins With\" search and its list",
                     searchOnScreen(screen, u"cmdSearch"_s, kPrefix),
                     bench::medianMicroseconds([&] { beginsWith.rows({kPrefix + u'%'}); }, kRuns));

    bench::RawStatement all(shop.path, u"SELECT * FROM tblPayee ORDER BY payeeName"_s);
    bench::printCase("\"Retrieve All\" and its list",
                     searchOnScreen(screen, u"Command2"_s, QString()),
                     bench::medianMicroseconds([&] { all.rows({}); }, kRuns));
    std::printf(
        "(%lld customers listed)\n",
        qint64(screen.findChild<QAbstractItemView *>(u"lstCustomers"_s)->model()->rowCount()));
}

} // namespace

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const benchshop::Shop shop = benchshop::openShop();
    bench::printHeader();
    balance(shop);
    searches(shop);
    return 0;
}
