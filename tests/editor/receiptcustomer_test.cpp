// Finding the receipt's customer by the matches under the name or the list.

#include "app/company.h"
#include "app/session.h"
#include "customers/frmcustomerlist.h"
#include "editortest.h"
#include "receipts/receipt.h"

#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

class CustomerMatchingTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        company().useAutoComplete = true;
        apple = addCustomer(u"Ann Apple"_s);
        obrien = addCustomer(u"Ann O'Brien"_s, u"Cork"_s, u"Ontario"_s);
        percent = addCustomer(u"Anna 100% Co"_s);
        addCustomer(u"Anna 1000 Co"_s);
        addCustomer(u"Bob"_s);
        // Ann O'Brien owes 1,234.50 from an unpaid sale.
        addReceipt(obrien, [](Receipt &receipt) {
            receipt.receiptNumber = u"1"_s;
            receipt.amountDue = Currency::fromText(u"1234.5"_s);
        });
    }

    static QTreeView *matches(const frmReceipt &screen) {
        return control<QTreeView>(screen, u"lstCustomerMatch"_s);
    }
    static QLineEdit *name(const frmReceipt &screen) {
        return control<QLineEdit>(screen, u"txtPayeeName"_s);
    }
    // The names in the panel, or "hidden" when it does not show.
    static QStringList panel(const frmReceipt &screen) {
        if (control<QWidget>(screen, u"CustomerPanel"_s)->isHidden())
            return {u"hidden"_s};
        QStringList names;
        for (const QString &row : rowsOf(screen, u"lstCustomerMatch"_s))
            names.append(row.section(u" | "_s, 1, 1));
        return names;
    }
    static QString account(const frmReceipt &screen) {
        return textsOf(screen, {u"lblID"_s, u"lblAcctBal"_s});
    }

    qint32 apple = 0, obrien = 0, percent = 0;
};

TEST_F(CustomerMatchingTest, ThePanelFollowsTheNameAndTakesAMatchByKeyboard) {
    withEditor(0, [&](frmReceipt &screen) {
        screen.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        QTest::keyClick(name(screen), Qt::Key_A);
        EXPECT_EQ(panel(screen).size(), 4);
        // The panel hangs under the name field.
        const QWidget *floating = control<QWidget>(screen, u"CustomerPanel"_s);
        EXPECT_EQ(floating->geometry().top() - 1,
                  name(screen)->mapTo(&screen, QPoint(0, name(screen)->height())).y());
        QTest::keyClicks(name(screen), u"nn O'"_s);
        EXPECT_EQ(panel(screen), QStringList{u"Ann O'Brien"_s});
        EXPECT_EQ(
            rowsOf(screen, u"lstCustomerMatch"_s),
            QStringList(
                u"%1 | Ann O'Brien | 1 Main St | Suite 2 | Cork | Ontario | 62701"_s.arg(obrien)));
        QTest::keyClick(name(screen), Qt::Key_Escape);
        EXPECT_EQ(panel(screen), QStringList{u"hidden"_s});
        EXPECT_TRUE(screen.isVisible()) << "Escape closed the panel, not the screen";

        QTest::keyClick(name(screen), Qt::Key_B);
        QTest::keyClick(name(screen), Qt::Key_Down);
        EXPECT_EQ(QApplication::focusWidget(), matches(screen));
        QTest::keyClick(matches(screen), Qt::Key_Return);
        EXPECT_EQ(panel(screen), QStringList{u"hidden"_s});
        EXPECT_EQ(textsOf(screen, {u"txtPayeeName"_s, u"txtAddress"_s, u"txtCity"_s, u"txtState"_s,
                                   u"txtEmail"_s}),
                  u"Ann O'Brien | 1 Main St | Cork | Ontario | shop@example.com"_s);
        EXPECT_EQ(account(screen), u"%1 | 1,234.50"_s.arg(obrien));

        // A wildcard matches itself; a name without a match is a new customer.
        name(screen)->setText(u"Anna 100%"_s);
        EXPECT_EQ(panel(screen), QStringList{u"Anna 100% Co"_s});
        EXPECT_EQ(account(screen), u"%1 | 1,234.50"_s.arg(obrien)) << "still picked";
        name(screen)->clear();
        EXPECT_EQ(panel(screen), QStringList{u"hidden"_s});
        EXPECT_EQ(account(screen), u"%1 | 1,234.50"_s.arg(obrien)) << "an empty name keeps it";
        name(screen)->setText(u"Zed"_s);
        EXPECT_EQ(panel(screen), QStringList{u"hidden"_s});
        EXPECT_EQ(account(screen), u" | 0.00"_s);
        return 0;
    });
    EXPECT_TRUE(boxes().shown.isEmpty());
}

// A click takes the row; on an account payment the amount due becomes the
// balance. The close image lets the customer go and keeps the typed fields.
TEST_F(CustomerMatchingTest, AClickTakesTheRowAndTheCloseImageLetsItGo) {
    const QString seen = withEditor(0, [&](frmReceipt &screen) {
        control<QRadioButton>(screen, u"optView2"_s)->click();
        QTest::keyClicks(name(screen), u"ann"_s);
        matches(screen)->scrollToTop();
        const QModelIndex second = matches(screen)->model()->index(1, 1);
        EXPECT_EQ(second.data().toString(), u"Ann O'Brien"_s);
        QTest::mouseClick(matches(screen)->viewport(), Qt::LeftButton, {},
                          matches(screen)->visualRect(second).center());
        QStringList states = {account(screen) + u" | "_s + textOf(screen, u"txtDue"_s)};
        QTest::keyClicks(name(screen), u" "_s);
        control<QToolButton>(screen, u"Image1"_s)->click();
        states.append(panel(screen).join(u','));
        states.append(account(screen) + u" | "_s + textOf(screen, u"txtPayeeName"_s));
        return states.join(u" / "_s);
    });
    EXPECT_EQ(seen, u"%1 | 1,234.50 | 1,234.50 / hidden /  | 0.00 | Ann O'Brien "_s.arg(obrien));
}

TEST_F(CustomerMatchingTest, AStoredReceiptSearchesOnlyWhenTheNameIsChanged) {
    const qint32 id = addReceipt(apple, [](Receipt &receipt) { receipt.receiptNumber = u"2"_s; });
    const QStringList seen = withEditor(id, [&](frmReceipt &screen) {
        QStringList states = panel(screen);
        screen.findChild<QAction *>(u"ID_EditReceipt"_s)->trigger();
        QTest::keyClick(name(screen), Qt::Key_Backspace);
        states += panel(screen);
        return states;
    });
    EXPECT_EQ(seen, (QStringList{u"hidden"_s, u"Ann Apple"_s}));
}

TEST_F(CustomerMatchingTest, WithoutMatchingTheCustomerListPicks) {
    company().useAutoComplete = false;
    frmReceipt screen;
    const auto pickFromList = [&](const QString &typed) {
        return [typed](frmCustomerList &list) {
            EXPECT_TRUE(list.pickMode);
            control<QLineEdit>(list, u"txtName"_s)->setText(typed);
            click(list, u"cmdSearch"_s);
            auto *rows = control<QTreeView>(list, u"lstCustomers"_s);
            rows->setCurrentIndex(rows->model()->index(0, 0));
            Q_EMIT rows->activated(rows->currentIndex());
        };
    };
    driveModal<frmCustomerList>(
        [&] {
            screen.show();
            screen.activateWindow();
            const QWidget *address = control<QLineEdit>(screen, u"txtAddress"_s);
            EXPECT_TRUE(QTest::qWaitFor([&] { return screen.focusWidget() == address; }));
        },
        pickFromList(u"Ann O"_s));
    EXPECT_EQ(textsOf(screen, {u"txtPayeeName"_s, u"txtCity"_s, u"lblID"_s, u"lblAcctBal"_s}),
              u"Ann O'Brien | Cork | %1 | 1,234.50"_s.arg(obrien));
    EXPECT_EQ(panel(screen), QStringList{u"hidden"_s});

    // Tabbing back into the name does not open it again; a double click does.
    // A user without the edit right takes the customer but cannot change it.
    session().currentUser = userWith(u"cy"_s, 0, 0);
    name(screen)->setFocus(Qt::BacktabFocusReason);
    QTest::qWait(20);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    driveModal<frmCustomerList>([&] { QTest::mouseDClick(name(screen), Qt::LeftButton); },
                                pickFromList(u"Ann A"_s));
    EXPECT_EQ(textsOf(screen, {u"txtPayeeName"_s, u"lblID"_s, u"lblAcctBal"_s}),
              u"Ann Apple | %1 | 0.00"_s.arg(apple));
    EXPECT_EQ(enabled(screen,
                      {u"txtPayeeName"_s, u"txtCity"_s, u"txtState"_s, u"txtEmail"_s, u"txtDue"_s}),
              u"00001"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
}

} // namespace
