// What each receipt form puts on paper, read back from the PDF.
#include "reportoutputtest.h"

#include "app/company.h"
#include "output/modreports.h"
#include "platform/paths.h"

#include <QDir>
#include <QImage>

using namespace Qt::Literals::StringLiterals;

namespace {

QDateTime noonOf(int year, int month, int day) {
    return QDateTime(QDate(year, month, day), QTime(12, 0));
}

} // namespace

class ReceiptFormsTest : public ReportOutputTest {
protected:
    qint32 hammerReceipt() {
        return addProductReceipt(
            u"26-00017"_s, noonOf(2026, 3, 14), addCustomer(u"Dana O'Neil"_s),
            {{u"HM-16"_s, u"Claw hammer 16 oz"_s, 2, 18.5, u"Fibreglass handle"_s},
             {u"NL-100"_s, u"Box of nails"_s, 3, 4.25}});
    }

    // The receipt's PDF text with its runs of blanks made single.
    QString printedText(qint32 receiptID) {
        modReports::printReceipt(receiptID, modReports::ScreenMode);
        return deliveredText().simplified();
    }
};

TEST_F(ReceiptFormsTest, ProductReceiptHoldsItsCompanyCustomerLinesTotalsAndVoid) {
    const qint32 id = hammerReceipt();
    const QString text = printedText(id);
    for (const QString &expected : {u"Harbor Lane Hardware"_s,
                                    u"12 Harbor Lane"_s,
                                    u"Portsmouth, NH 03801"_s,
                                    u"603-555-0147"_s,
                                    u"Tools that last"_s,
                                    u"26-00017"_s,
                                    u"03/14/2026"_s,
                                    u"Dana O'Neil"_s,
                                    u"48 Elm Street"_s,
                                    u"Dover, NH 03820"_s,
                                    u"HM-16 Claw hammer 16 oz 2 $18.50 $37.00"_s,
                                    u"Fibreglass handle"_s,
                                    u"NL-100 Box of nails 3 $4.25 $12.75"_s,
                                    u"Sub Total: $49.75"_s,
                                    u"Tax: $2.49"_s,
                                    u"TOTAL $52.24"_s,
                                    u"Received: $52.24"_s,
                                    u"Paid By: Check #1042"_s,
                                    u"Balance Due: $0.00"_s,
                                    u"Received By: Ann"_s}) {
        EXPECT_TRUE(text.contains(expected))
            << expected.toStdString() << "\n in: " << text.toStdString();
    }
    EXPECT_FALSE(text.contains(u"VOID"_s));
    EXPECT_FALSE(text.contains(u"Tax exempt"_s));

    db::execute(u"UPDATE tblReceipt SET status = ?, voidReason = ? WHERE receiptID = ?"_s,
                {Receipt::Void, u"Rang up twice"_s, id});
    EXPECT_TRUE(printedText(id).contains(u"VOID Reason: Rang up twice"_s));
}

TEST_F(ReceiptFormsTest, CompanySettingsAndTheLogoChangeTheForm) {
    const qint32 id = hammerReceipt();
    company().isTaxExempt = true;
    EXPECT_TRUE(printedText(id).contains(u"Tax: $2.49 Tax exempt"_s));
    EXPECT_TRUE(pdfImages(deliveredPdf()).isEmpty()) << "no logo file, no logo";

    company().hideSalesTax = true;
    company().hideDiscountField = true;
    db::execute(u"UPDATE tblSystem SET hideAcctBalance = 1"_s);
    const QString hidden = printedText(id);
    for (const QString &gone : {u"Tax:"_s, u"Discount:"_s, u"Account Balance:"_s})
        EXPECT_FALSE(hidden.contains(gone)) << gone.toStdString();
    EXPECT_TRUE(hidden.contains(u"TOTAL $52.24"_s)) << hidden.toStdString();

    db::execute(
        u"UPDATE tblReceipt SET amountOther = 25000, customField2 = 'Blue' WHERE receiptID = ?"_s,
        {id});
    db::execute(u"UPDATE tblSystem SET customField2 = 'Colour', currencySymbol = 128"_s);
    company().otherFieldName = u"Delivery"_s;
    const QString text = printedText(id);
    EXPECT_TRUE(text.contains(u"Delivery: €2.50"_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Colour: Blue"_s));
    EXPECT_FALSE(text.contains(u"customField"_s));

    QDir().mkpath(Paths::dataFolder());
    QImage logo(360, 240, QImage::Format_RGB32);
    logo.fill(Qt::darkGreen);
    ASSERT_TRUE(logo.save(Paths::logoPath(), "JPG"));
    modReports::printReceipt(id, modReports::ScreenMode);
    const QStringList images = pdfImages(deliveredPdf());
    ASSERT_EQ(images.size(), 1);
    EXPECT_TRUE(images.first().contains(u" 360   240 "_s)) << images.first().toStdString();
}

TEST_F(ReceiptFormsTest, RollReceiptIsOnePageAsLongAsItsLines) {
    company().usePOSPrinter = true;
    const qint32 payee = addCustomer(u"Lee"_s);
    const qint32 shortReceipt =
        addProductReceipt(u"1"_s, noonOf(2026, 3, 1), payee, {{u"A"_s, u"Tape"_s, 1, 3}});
    QList<Line> manyLines;
    for (int i = 0; i < 40; ++i)
        manyLines.append({u"S%1"_s.arg(i), u"Screw pack %1"_s.arg(i), 1, 1.5});
    const qint32 longReceipt = addProductReceipt(u"2"_s, noonOf(2026, 3, 1), payee, manyLines);

    modReports::printReceipt(shortReceipt, modReports::ScreenMode);
    const QList<QSizeF> shortPages = pdfPageSizes(deliveredPdf());
    modReports::printReceipt(longReceipt, modReports::ScreenMode);
    const QList<QSizeF> longPages = pdfPageSizes(deliveredPdf());
    ASSERT_EQ(shortPages.size(), 1);
    ASSERT_EQ(longPages.size(), 1);
    EXPECT_NEAR(shortPages[0].width(), 80 / 25.4 * 72, 1); // 80 mm
    EXPECT_GT(longPages[0].height(), shortPages[0].height() + 39 * 20);
    EXPECT_TRUE(deliveredText().contains(u"Screw pack 39"_s));
}

TEST_F(ReceiptFormsTest, ServiceReceiptShowsItsDescriptionOnTheBasicForm) {
    Receipt receipt;
    receipt.receiptNumber = u"26-00020"_s;
    receipt.receiptDate = noonOf(2026, 4, 2);
    receipt.payeeID = addCustomer(u"Ola"_s);
    receipt.status = Receipt::Issued;
    receipt.receiptType = Receipt::ServiceReceipt;
    receipt.receiptDesc = u"Sharpened twelve chisels and re-set the plane irons"_s;
    receipt.amountDue = Currency::fromInt(60);
    receipt.writeReceipt();

    for (bool roll : {false, true}) {
        company().usePOSPrinter = roll;
        const QString text = printedText(receipt.receiptID);
        EXPECT_TRUE(text.contains(u"Sharpened twelve chisels"_s)) << text.toStdString();
        EXPECT_TRUE(text.contains(u"Sub Total: $60.00"_s));
        EXPECT_TRUE(text.contains(u"Service Receipt"_s));
    }
}
