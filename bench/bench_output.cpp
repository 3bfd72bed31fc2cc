// Times (in processor milliseconds, the median of several runs) the output a user waits for: one
// receipt to PDF, and the Receipt Ledger over 10,000 receipts to PDF. Each figure stands beside a
// bare pass that draws the same text runs with QPainter onto the same kind of device, so that what
// the report engine itself costs can be read off.
#include "app/company.h"
#include "app/database.h"
#include "app/schema.h"
#include "app/session.h"
#include "output/reportdelivery.h"
#include "output/reportpainter.h"
#include "output/reportrunner.h"
#include "platform/paths.h"
#include "receipts/receipt.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLedgerReceipts = 10000;
constexpr int kRuns = 7;

// Answers the ledger's date questions with the month the receipts are in.
class BenchDelivery final : public ReportDelivery {
public:
    bool askParameters(const QString &, const QList<ReportParameter> &,
                       QHash<QString, QVariant> &values) override {
        values.insert(u"startDate"_s, QDate(2026, 3, 1));
        values.insert(u"endDate"_s, QDate(2026, 3, 31));
        return true;
    }
    void toPrinter(const RenderedReport &) override {}
    void toScreen(const RenderedReport &) override {}
    void toMail(const MailMessage &) override {}
};

qint32 fill() {
    db::Transaction transaction;
    db::execute(u"UPDATE tblSystem SET companyName = 'Harbor Lane Hardware', address1 = "
                "'12 Harbor Lane', city = 'Portsmouth', state = 'NH', zip = '03801', "
                "phone = '603-555-0147', tagline = 'Tools that last'"_s);
    const qint64 payee = db::insertReturningKey(
        u"INSERT INTO tblPayee (payeeName, address1, city, state, zip) "
        "VALUES ('Dana Whitfield', '48 Elm Street', 'Dover', 'NH', '03820') RETURNING payeeID"_s);
    const QDateTime start(QDate(2026, 3, 1), QTime(8, 0));
    for (int i = 0; i < kLedgerReceipts; ++i) {
        db::execute(u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountDue, "
                    "amountReceived, balanceRemaining, amountTax, amountOther, amountDiscount, "
                    "status, receiptType, receivedBy, paymentType) "
                    "VALUES (?, ?, ?, ?, ?, 0, 0, 0, 0, 1, 0, 'Ann', 1)"_s,
                    {u"26-%1"_s.arg(i, 5, 10, QChar(u'0')), start.addSecs(i * 240LL), payee,
                     Currency::fromInt(5 + i % 200), Currency::fromInt(5 + i % 200)});
    }
    for (int line = 0; line < 12; ++line) {
        db::execute(u"INSERT INTO tblReceipt_Product (receiptID, productID, quantity, "
                    "overrideCost, overrideDesc, unitTotal, extDesc) VALUES (1, 0, 2, 42500, ?, "
                    "85000, '')"_s,
                    {u"Garden hose reel, 30 m, item %1"_s.arg(line + 1)});
    }
    transaction.commit();
    modMain::loadCompanyInfo();
    return 1;
}

// Processor time rather than wall time: the machine may be busy with others.
double medianMilliseconds(const std::function<void()> &work) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        const std::clock_t start = std::clock();
        work();
        times.push_back(double(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// The same text runs in the same places, drawn straight onto a PDF writer.
QByteArray barePass(const RenderedReport &report) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    const double dots = writer.logicalDpiX() / 25.4;
    for (qsizetype index = 0; index < report.pages.size(); ++index) {
        if (index > 0)
            writer.newPage();
        for (const ReportItem &item : report.pages.at(index).items) {
            if (item.kind != ReportItem::Kind::Text)
                continue;
            painter.setFont(item.font);
            painter.drawText(QRectF(item.rect.x() * dots, item.rect.y() * dots,
                                    item.rect.width() * dots, item.rect.height() * dots),
                             int(item.align), item.text);
        }
    }
    return bytes;
}

RenderedReport render(const QString &form, bool isReceipt, qint32 receiptID) {
    ReportRunner runner;
    runner.connectionString = session().connectionString;
    runner.receiptID = receiptID;
    runner.companyName = company().companyName;
    return *runner.render(Paths::resourceFolder() + form, isReceipt, u"Bench"_s);
}

void report(const char *what, const RenderedReport &sample, double engine, double bare) {
    const double pages = double(sample.pages.size());
    std::printf("%-34s %4d pages %9.2f ms (%5.2f ms a page)   bare QPainter pass %9.2f ms "
                "(%5.2f ms a page)   ratio %.2f\n",
                what, int(pages), engine, engine / pages, bare, bare / pages, engine / bare);
}

} // namespace

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"bench.db"_s);
    Schema::createDatabase(path);
    setConnectionString(path);
    installReportDelivery(std::make_unique<BenchDelivery>());
    const qint32 receiptID = fill();

    const QString receiptForm = u"/reports/forms/ProductReceipt.mrt"_s;
    const RenderedReport receipt = render(receiptForm, true, receiptID);
    report("one product receipt to PDF", receipt,
           medianMilliseconds([&] { ReportPainter::toPdf(render(receiptForm, true, receiptID)); }),
           medianMilliseconds([&] { barePass(receipt); }));

    const QString ledgerForm = u"/reports/ReceiptLedger.mrt"_s;
    const RenderedReport ledger = render(ledgerForm, false, 0);
    report("Receipt Ledger, 10,000 receipts", ledger,
           medianMilliseconds([&] { ReportPainter::toPdf(render(ledgerForm, false, 0)); }),
           medianMilliseconds([&] { barePass(ledger); }));
    return 0;
}
