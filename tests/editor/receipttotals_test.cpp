// The money of a receipt: sub total, tax rounded once to cents, total and
// what is still due, as worked out and as the editor shows them.

#include "app/company.h"
#include "app/runtimeformat.h"
#include "editor/receipttotals.h"
#include "editortest.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString figures(const ReceiptTotals::Result &result) {
    QStringList amounts;
    for (const Currency amount : {result.subTotal, result.tax, result.total, result.balance})
        amounts.append(Runtime::formatNumber(amount, u"0.0000"_s));
    return amounts.join(u' ');
}

// The screen test below shows the usual case; these are the edges.
TEST(ReceiptTotals, TaxIsTakenOnTheBaseAfterOtherAndDiscountAndRoundedOnce) {
    const struct {
        QString due, received, other, discount;
        double taxRate;
        const char *expected; // sub total, tax, total, balance
    } cases[] = {
        // A discount above the sub total gives a negative base and tax.
        {u"10"_s, u""_s, u""_s, u"30"_s, 10, "10.0000 -2.0000 -22.0000 -22.0000"},
        // Typed amounts keep four decimals; letters count as 0.
        {u"12.34567"_s, u"1,000.5"_s, u"abc"_s, u""_s, 0, "12.3457 0.0000 12.3457 -988.1543"},
    };
    for (const auto &example : cases) {
        ReceiptTotals::Input input;
        input.due = example.due;
        input.received = example.received;
        input.other = example.other;
        input.discount = example.discount;
        input.taxRate = example.taxRate;
        EXPECT_EQ(figures(ReceiptTotals::calculate(input)), QString::fromLatin1(example.expected));
    }
    // The product view takes the lines and ignores the typed amount.
    ReceiptTotals::Input lines;
    lines.due = u"99"_s;
    lines.productTotal = Currency::fromText(u"22.5"_s);
    lines.productView = true;
    lines.taxRate = 7.5;
    EXPECT_EQ(figures(ReceiptTotals::calculate(lines)), u"22.5000 1.6900 24.1900 24.1900"_s);
}

class ReceiptTotalsScreenTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        company().defaultReceiptType = 1;
    }
    static QString totals(const frmReceipt &screen) {
        return textsOf(screen, {u"lblSubTotal"_s, u"lblTax"_s, u"lblTotal"_s, u"lblBalance"_s});
    }
    static void type(const frmReceipt &screen, const QString &field, const QString &text) {
        auto *edit = control<QLineEdit>(screen, field);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
};

// Every keystroke works the totals out; leaving an amount that is not a
// number says so and goes back, an empty one passes.
TEST_F(ReceiptTotalsScreenTest, EveryKeystrokeWorksTheTotalsOut) {
    company().taxRate = 6.5;
    const QStringList seen = withEditor(0, [](frmReceipt &screen) {
        QStringList states;
        type(screen, u"txtDue"_s, u"100"_s);
        type(screen, u"txtOther"_s, u"10"_s);
        type(screen, u"txtDiscount"_s, u"5"_s);
        states.append(totals(screen)); // 105 at 6.5% is 6.825, rounded half away from zero
        type(screen, u"txtRecvd"_s, u"120"_s);
        states.append(totals(screen));
        control<QCheckBox>(screen, u"chkTaxExempt"_s)->click();
        states.append(totals(screen));
        type(screen, u"txtOther"_s, u"ten"_s);
        states.append(totals(screen));
        // An account payment has no tax, charge or discount.
        control<QCheckBox>(screen, u"chkTaxExempt"_s)->click();
        control<QRadioButton>(screen, u"optView2"_s)->click();
        states.append(totals(screen) + u" | "_s + textOf(screen, u"txtDue"_s));

        control<QRadioButton>(screen, u"optView1"_s)->click();
        screen.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        auto *due = control<QLineEdit>(screen, u"txtDue"_s);
        for (const QString &typed : {u"12,x"_s, u""_s}) {
            due->setFocus();
            due->setText(typed);
            control<QLineEdit>(screen, u"txtRecvd"_s)->setFocus(Qt::TabFocusReason);
            QTest::qWait(20);
            states.append(QApplication::focusWidget()->objectName());
        }
        return states;
    });
    EXPECT_EQ(seen, (QStringList{
                        u"100.00 | 6.83 | 111.83 | 111.83"_s, u"100.00 | 6.83 | 111.83 | -8.17"_s,
                        u"100.00 | 0.00 | 105.00 | -15.00"_s, u"100.00 | 0.00 | 95.00 | -25.00"_s,
                        u"0.00 | 0.00 | 0.00 | -120.00 | 0.00"_s, u"txtDue"_s, u"txtRecvd"_s}));
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Error | Invalid dollar amount.  Use format 0.00 | Critical"_s))
        << "and none for letters in Other";
}

// The setting hides the tax; the total still holds it.
TEST_F(ReceiptTotalsScreenTest, ATaxExemptCompanyHidesTheTaxButStillCountsIt) {
    company().taxRate = 10;
    company().isTaxExempt = true;
    company().hideDiscountField = true;
    const QString seen = withEditor(0, [](frmReceipt &screen) {
        type(screen, u"txtDue"_s, u"50"_s);
        return shown(screen, {u"lblTaxTitle"_s, u"lblTax"_s, u"chkTaxExempt"_s, u"lblDiscount"_s,
                              u"txtDiscount"_s, u"lblOther"_s}) +
               u" | "_s + totals(screen);
    });
    EXPECT_EQ(seen, u"000001 | 50.00 | 5.00 | 55.00 | 55.00"_s);
}

} // namespace
