// The receipt journal on the shop's million receipts: "All Dates" until the
// first rows show, and scrolling from there to the very last receipt, each
// beside the same statements run on QtSql alone.
#include "app/database.h"
#include "mainwin/frmjournal.h"
#include "mainwin/journalmodel.h"
#include "measure.h"
#include "receipts/receipt.h"
#include "shop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRuns = 15;

// The journal's page statement with "All Dates" and no other filter.
const QString kPage =
    u"SELECT R.receiptID, R.receiptDate, R.receiptNumber, P.payeeName, R.amountReceived, "
    "R.balanceRemaining, S.statusName FROM (tblReceipt AS R "
    "LEFT JOIN tblPayee AS P ON P.payeeID = R.payeeID) "
    "LEFT JOIN tblStatus AS S ON S.statusID = R.status "
    "WHERE R.receiptDate >= ?  AND R.receiptDate <= ?  AND R.receiptType <> ? %1"
    "ORDER BY R.receiptDate, R.receiptNumber, R.receiptID LIMIT ?"_s;
const QString kAfter = u"AND (R.receiptDate, R.receiptNumber, R.receiptID) > (?, ?, ?) "_s;

const QString kFirstDay = db::dateText(QDate(1900, 1, 1));
const QString kLastDay = db::dateText(QDate(2200, 1, 1));

// The process's peak resident memory as the kernel tells it.
QString peakMemory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return u"unknown"_s;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return QString::fromLatin1(line.mid(6).trimmed());
    }
    return u"unknown"_s;
}

struct Screen {
    frmJournal journal;
    QPushButton *search = nullptr;
    QTableView *list = nullptr;

    Screen() {
        journal.resize(900, 600);
        journal.show();
        search = journal.findChild<QPushButton *>(u"cmdSearch"_s);
        list = journal.findChild<QTableView *>(u"lstReceipts"_s);
    }
    // Until what the search found is painted.
    void showFirstRows() {
        search->click();
        QCoreApplication::processEvents();
        list->viewport()->repaint();
    }
};

void firstRows(Screen &screen, const benchshop::Shop &shop) {
    const double brisko = bench::medianMicroseconds([&] { screen.showFirstRows(); }, kRuns);
    bench::RawStatement raw(shop.path, kPage.arg(QString()));
    const double baseline = bench::medianMicroseconds(
        [&] {
            raw.rows({kFirstDay, kLastDay, Receipt::OpeningBalance, JournalModel::kPageRows});
        },
        kRuns);
    bench::printCase("journal, All Dates: first rows shown", brisko, baseline);
}

// Scrolls to the bottom again and again, as a person holding End would,
// until the last receipt shows; each step is one pause the person sees.
void scrollToTheEnd(Screen &screen, const benchshop::Shop &shop) {
    screen.showFirstRows();
    QAbstractItemModel *model = screen.list->model();
    std::vector<double> pauses;
    QElapsedTimer whole;
    whole.start();
    while (model->canFetchMore({})) {
        QElapsedTimer step;
        step.start();
        const int before = model->rowCount();
        screen.list->scrollToBottom();
        QCoreApplication::processEvents();
        if (model->rowCount() == before)
            model->fetchMore({});
        screen.list->viewport()->repaint();
        pauses.push_back(double(step.nsecsElapsed()) / 1000);
    }
    const double wholeScroll = double(whole.nsecsElapsed()) / 1000;
    std::sort(pauses.begin(), pauses.end());
    const QString memory = peakMemory(); // before the raw side reads every row

    // The raw side: one page deep in the list, and the whole list read at once.
    bench::RawStatement rawPage(shop.path, kPage.arg(kAfter));
    const QModelIndex middle = model->index(model->rowCount() / 2, 0);
    const db::Row key = *db::readFirst(
        u"SELECT receiptDate, receiptNumber, receiptID FROM tblReceipt WHERE receiptID = ?"_s,
        {middle.data(Qt::UserRole).toInt()});
    // As the journal binds it: the page starts on the last row's day.
    const QVariantList pageValues = {db::dateText(key.dateTime(u"receiptDate"_s).date()),
                                     kLastDay,
                                     Receipt::OpeningBalance,
                                     key.text(u"receiptDate"_s),
                                     key.text(u"receiptNumber"_s),
                                     key.int32(u"receiptID"_s),
                                     JournalModel::kPageRows};
    const double rawPageTime = bench::medianMicroseconds([&] { rawPage.rows(pageValues); }, kRuns);
    bench::RawStatement rawAll(shop.path, kPage.arg(QString()));
    const double rawAllTime = bench::medianMicroseconds(
        [&] {
            rawAll.rows({kFirstDay, kLastDay, Receipt::OpeningBalance, -1});
        },
        3);

    std::printf("(%d rows in %zu steps, peak memory %s)\n", model->rowCount(), pauses.size() + 1,
                qPrintable(memory));
    bench::printCase("journal, scrolling: median pause", pauses[pauses.size() / 2], rawPageTime);
    bench::printCase("journal, scrolling: longest pause", pauses.back(), rawPageTime);
    bench::printCase("journal, scrolling: whole list to its end", wholeScroll, rawAllTime);
}

} // namespace

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const benchshop::Shop shop = benchshop::openShop();

    bench::printHeader();
    Screen screen;
    firstRows(screen, shop);
    scrollToTheEnd(screen, shop);
    return 0;
}
