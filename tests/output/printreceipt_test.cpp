// printReceipt: which template, which way out, what the mail says, and its failures.
#include "reportoutputtest.h"

#include "app/company.h"
#include "output/modreports.h"
#include "platform/paths.h"

#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

using Where = ReportOutputTest::Delivered::Where;

class PrintReceiptTest : public ReportOutputTest {
protected:
    qint32 receiptOfType(qint16 type) {
        Receipt receipt;
        receipt.receiptNumber = u"26-00031"_s;
        receipt.receiptDate = QDateTime(QDate(2026, 5, 6), QTime(9, 30));
        receipt.payeeID = addCustomer(u"Ruth Abara"_s, u"ruth@example.org"_s);
        receipt.status = Receipt::Issued;
        receipt.receiptType = type;
        receipt.amountDue = Currency::fromInt(10);
        receipt.writeReceipt();
        return receipt.receiptID;
    }
};

TEST_F(PrintReceiptTest, TemplateFollowsTheTypeAndThePrinterKind) {
    const struct {
        qint16 type;
        bool roll;
        const char16_t *form;
    } cases[] = {
        {0, false, u"/reports/forms/ProductReceipt.mrt"},
        {0, true, u"/reports/forms/ProductReceipt_3Inch.mrt"},
        {1, false, u"/reports/forms/BasicReceipt.mrt"},
        {1, true, u"/reports/forms/BasicReceipt_3Inch.mrt"},
        {2, false, u"/reports/forms/BasicReceipt.mrt"},
        {2, true, u"/reports/forms/BasicReceipt_3Inch.mrt"},
        {3, false, u""},
        {4, false, u""},
        {4, true, u"/reports/forms/ProductReceipt_3Inch.mrt"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(modReports::receiptTemplate(c.type, c.roll), QString::fromUtf16(c.form))
            << c.type << (c.roll ? " on a roll" : " on sheets");
}

// Mode 0 shows, 1 prints, 3 mails the receipt as a PDF with the company's words.
TEST_F(PrintReceiptTest, ModesReachTheScreenThePrinterAndTheMail) {
    company().companyName = u"Harbor Lane Hardware"_s;
    company().phone = u"603-555-0147"_s;
    company().tagline = QString();
    const qint32 id = receiptOfType(Receipt::ProductReceipt);
    for (const int mode : {0, 1, 3})
        modReports::printReceipt(id, mode);

    ASSERT_EQ(delivery().delivered.size(), 3);
    EXPECT_EQ(delivery().delivered[0].where, Where::Screen);
    EXPECT_EQ(delivery().delivered[1].where, Where::Printer);
    EXPECT_EQ(delivery().delivered[0].report.title, u"Receipt 26-00031"_s);
    const MailMessage &mail = delivery().delivered[2].mail;
    EXPECT_EQ(mail.to, u"ruth@example.org"_s);
    EXPECT_EQ(mail.subject, u"Your receipt from Harbor Lane Hardware"_s);
    EXPECT_EQ(mail.body, u"Your receipt, 26-00031, is attached\r\n\r\nHarbor Lane Hardware\r\n"
                         "603-555-0147\r\n\r\n"_s);
    ASSERT_EQ(mail.attachments.size(), 1);
    EXPECT_EQ(mail.attachments[0].fileName, u"Receipt 26-00031.pdf"_s);
    EXPECT_EQ(mail.attachments[0].mimeType, u"application/pdf"_s);
    EXPECT_TRUE(pdfToText(mail.attachments[0].data).contains(u"Ruth Abara"_s));
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(PrintReceiptTest, FailuresShowOneBoxAndReturn) {
    modReports::printReceipt(receiptOfType(4), 0); // an opening balance has no sheet form
    modReports::printReceipt(999, 1);              // no such receipt: still tried, untitled

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Error | An error occured while printing the receipt:  "_s))
        << lines[0].toStdString();
    EXPECT_TRUE(lines[0].endsWith(u" | Critical"_s));
    EXPECT_TRUE(lines[1].contains(Paths::resourceFolder())) << lines[1].toStdString();
    EXPECT_TRUE(delivery().delivered.isEmpty());
}

TEST_F(PrintReceiptTest, NoPrinterOffersTheScreen) {
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer";
    installReportDelivery(std::make_unique<DesktopReportDelivery>());
    boxes().answers.enqueue(Dialogs::Answer::No);
    modReports::printReceipt(receiptOfType(Receipt::ProductReceipt), 1);
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_EQ(boxes().shown[0].title, u"No Printer"_s);
    EXPECT_EQ(boxes().shown[0].buttons, Dialogs::Buttons::YesNo);
}
