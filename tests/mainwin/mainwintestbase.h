#pragma once

#include "app/currency.h"
#include "app/database.h"
#include "mainwin/frmmain.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"

#include <QContextMenuEvent>
#include <QDate>
#include <QTest>
#include <QTreeWidget>
#include <functional>
#include <memory>

namespace mainwintest {

using namespace Qt::Literals::StringLiterals;

// The main window with a receipt editor that only notes which receipt it was
// asked to show, and may act while "open".
class TestMainWindow : public frmMain {
public:
    QList<qint32> shownReceipts;
    std::function<void()> whileShown;

protected:
    bool showReceipt(qint32 receiptID) override {
        shownReceipts.append(receiptID);
        if (whileShown)
            whileShown();
        return true;
    }
};

class MainWindowTest : public BriskoTest {
protected:
    // The window is made once the fixture's database is current.
    void SetUp() override {
        BriskoTest::SetUp();
        window = std::make_unique<TestMainWindow>();
    }

    void TearDown() override {
        window.reset();
        BriskoTest::TearDown();
    }

    // A receipt dated `date`; a Null payeeID leaves it without a customer row.
    static qint32 addReceipt(const QString &number, const QDateTime &date, const QVariant &payeeID,
                             Currency received = {}, Currency balance = {},
                             qint16 type = Receipt::ProductReceipt,
                             qint16 status = Receipt::Issued) {
        const db::Param payee = payeeID.isNull() ? db::Param(nullptr) : db::Param(payeeID.toInt());
        return static_cast<qint32>(db::insertReturningKey(
            u"INSERT INTO tblReceipt (receiptNumber, receiptDate, payeeID, amountReceived, "
            "balanceRemaining, status, receiptType) VALUES (?, ?, ?, ?, ?, ?, ?) "
            "RETURNING receiptID"_s,
            {number, date, payee, received, balance, int(status), int(type)}));
    }

    static QDateTime todayAtMidnight() { return QDateTime(QDate::currentDate(), QTime(0, 0)); }

    static Currency money(const char *text) {
        return Currency::fromText(QString::fromLatin1(text));
    }

    static QTreeWidget *list(const frmMain &window, const QString &name) {
        return window.findChild<QTreeWidget *>(name);
    }

    static QStringList rowTexts(const QTreeWidget *list, int row) {
        QStringList texts;
        const QTreeWidgetItem *item = list->topLevelItem(row);
        for (int column = 0; column < list->columnCount(); ++column)
            texts.append(item->text(column));
        return texts;
    }

    static qint32 rowTag(const QTreeWidget *list, int row) {
        return list->topLevelItem(row)->data(0, Qt::UserRole).toInt();
    }

    // A right click on `row`, or below the rows when row is -1: the press
    // selects the row, the context menu event asks for the popup.
    static void rightClick(QTreeWidget *list, int row) {
        QPoint position(10, list->viewport()->height() - 5);
        if (row >= 0) {
            QTreeWidgetItem *item = list->topLevelItem(row);
            list->setCurrentItem(item);
            position = list->visualItemRect(item).center();
        }
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                list->viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(list->viewport(), &event);
    }

    // The events of a real double click: a click, then the double click.
    static void doubleClick(QTreeWidget *list, const QPoint &position) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, position);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, position);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, position);
    }

    std::unique_ptr<TestMainWindow> window;
};

} // namespace mainwintest
