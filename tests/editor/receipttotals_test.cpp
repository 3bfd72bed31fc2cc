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

QString money(Currency amount) {
    return Runtime::formatNumber(amount, u"0.0000"_s);
}

TEST(ReceiptTotals, TaxIsTakenOnTheBaseAfterOtherAndDiscountAndRoundedOnce) {
    const struct {
        QString due, received, other, discount;
        double taxRate;
        bool noTax;
        const char *expected; // sub total, tax, total, balance
    } cases[] = {
        // 105 at 6.5% is 6.825, rounded half away from zero.
        {u"100"_s, u""_s, u"10"_s, u"5"_s, 6.5, false, "100.0000 6.8300 111.8300 111.8300"},
        {u"100"_s, u"120"_s, u"10"_s, u"5"_s, 6.5, true, "100.0000 0.0000 105.0000 -15.0000"},
        // A discount above the sub total gives a negative base and tax.
        {u"10"_s, u""_s, u""_s, u"30"_s, 10, false, "10.0000 -2.0000 -22.0000 -22.0000"},
        // Typed amounts keep four decimals; letters count as 0.
        {u"12.34567"_s, u"1,000.5"_s, u"abc"_s, u""_s, 0, false,
         "12.3457 0.0000 12.3457 -988.1543"},
    };
    const auto figures = [](const ReceiptTotals::Result &result) {
        return QStringList{money(result.subTotal), money(result.tax), money(result.total),
                           money(result.balance)}
            .join(u' ');
    };
    for (const auto &example : cases) {
        ReceiptTotals::Input input;
        input.due = example.due;
        input.received = example.received;
        input.other = example.other;
        input.discount = example.discount;
        input.taxRate = example.taxRate;
        input.noTax = example.noTax;
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
    static QString totals(const frmReceipt &screen) {
        return textsOf(screen, {u"lblSubTotal"_s, u"lblTax"_s, u"lblTotal"_s, u"lblBalance"_s});
    }
    static void type(const frmReceipt &screen, const QString &field, const QString &text) {
        auto *edit = control<QLineEdit>(screen, field);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
};

TEST_F(ReceiptTotalsScreenTest, EveryKeystrokeWorksTheTotalsOut) {
    company().taxRate = 6.5;
    company().defaultReceiptType = 1;
    const QStringList seen = withEditor(0, [](frmReceipt &screen) {
        QStringList states;
        type(screen, u"txtDue"_s, u"100"_s);
        type(screen, u"txtOther"_s, u"10"_s);
        type(screen, u"txtDiscount"_s, u"5"_s);
        states.append(totals(screen));
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
        return states;
    });
    EXPECT_EQ(seen, (QStringList{
                        u"100.00 | 6.83 | 111.83 | 111.83"_s, u"100.00 | 6.83 | 111.83 | -8.17"_s,
                        u"100.00 | 0.00 | 105.00 | -15.00"_s, u"100.00 | 0.00 | 95.00 | -25.00"_s,
                        u"0.00 | 0.00 | 0.00 | -120.00 | 0.00"_s}));
    EXPECT_TRUE(boxes().shown.isEmpty()) << "letters in Other give no message";
}

// The setting hides the tax; the total still holds it.
TEST_F(ReceiptTotalsScreenTest, ATaxExemptCompanyHidesTheTaxButStillCountsIt) {
    company().taxRate = 10;
    company().isTaxExempt = true;
    company().hideDiscountField = true;
    company().defaultReceiptType = 1;
    const QString seen = withEditor(0, [](frmReceipt &screen) {
        type(screen, u"txtDue"_s, u"50"_s);
        return shown(screen, {u"lblTaxTitle"_s, u"lblTax"_s, u"chkTaxExempt"_s, u"lblDiscount"_s,
                              u"txtDiscount"_s, u"lblOther"_s}) +
               u" | "_s + totals(screen);
    });
    EXPECT_EQ(seen, u"000001 | 50.00 | 5.00 | 55.00 | 55.00"_s);
}

// Leaving the amount due or received with something that is not a number
// says so and goes back; an empty field passes.
TEST_F(ReceiptTotalsScreenTest, LeavingAnAmountThatIsNotANumberSendsTheFocusBack) {
    company().defaultReceiptType = 1;
    const QString focused = withEditor(0, [](frmReceipt &screen) {
        screen.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        auto *due = control<QLineEdit>(screen, u"txtDue"_s);
        due->setFocus();
        due->setText(u"12,x"_s);
        control<QLineEdit>(screen, u"txtRecvd"_s)->setFocus(Qt::TabFocusReason);
        QTest::qWait(20);
        const QString first = QApplication::focusWidget()->objectName();
        due->clear();
        control<QLineEdit>(screen, u"txtRecvd"_s)->setFocus(Qt::TabFocusReason);
        QTest::qWait(20);
        return first + u' ' + QApplication::focusWidget()->objectName();
    });
    EXPECT_EQ(focused, u"txtDue txtRecvd"_s);
    EXPECT_EQ(boxes().lines(),
              QStringList(u"Error | Invalid dollar amount.  Use format 0.00 | Critical"_s));
}

} // namespace
