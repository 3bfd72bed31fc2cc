// printReceipt and printLedger: which template, which way out, what the mail
// says, and the boxes around e-mail.
#include "reportoutputtest.h"

#include "app/company.h"
#include "output/modreports.h"
#include "output/reportpainter.h"
#include "output/reportrunner.h"
#include "platform/paths.h"

#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

using Where = ReportOutputTest::Delivered::Where;

class PrintReceiptTest : public ReportOutputTest {
protected:
    qint32 receiptOfType(qint16 type, qint16 status = Receipt::Issued) {
        Receipt receipt;
        receipt.receiptNumber = u"26-00031"_s;
        receipt.receiptDate = QDateTime(QDate(2026, 5, 6), QTime(9, 30));
        receipt.payeeID = addCustomer(u"Ruth Abara"_s, u"ruth@example.org"_s);
        receipt.status = status;
        receipt.receiptType = type;
        receipt.amountDue = Currency::fromInt(10);
        receipt.writeReceipt();
        return receipt.receiptID;
    }
};

TEST_F(PrintReceiptTest, TemplateFollowsTheTypeAndThePrinterKind) {
    struct Case {
        qint16 type;
        bool roll;
        const char16_t *form;
    };
    const Case cases[] = {
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
    for (const Case &c : cases) {
        EXPECT_EQ(modReports::receiptTemplate(c.type, c.roll), QString::fromUtf16(c.form))
            << c.type << (c.roll ? " on a roll" : " on sheets");
    }
}

TEST_F(PrintReceiptTest, ModesAreSwappedOnTheWayToTheRunner) {
    EXPECT_EQ(modReports::runnerMode(0), ReportRunner::ToScreen);
    EXPECT_EQ(modReports::runnerMode(1), ReportRunner::ToPrinter);
    EXPECT_EQ(modReports::runnerMode(2), ReportRunner::PrepareEmail);
    EXPECT_EQ(modReports::runnerMode(3), ReportRunner::ToEmail);
    EXPECT_EQ(modReports::runnerMode(7), ReportRunner::ToPrinter);

    const qint32 id = receiptOfType(Receipt::ProductReceipt);
    modReports::printReceipt(id, 0);
    modReports::printReceipt(id, 1);
    ASSERT_EQ(delivery().delivered.size(), 2);
    EXPECT_EQ(delivery().delivered[0].where, Where::Screen);
    EXPECT_EQ(delivery().delivered[1].where, Where::Printer);
    EXPECT_EQ(delivery().delivered[0].report.title, u"Receipt 26-00031"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(PrintReceiptTest, EmailCarriesTheReceiptAsPdfWithTheCompanysWords) {
    company().companyName = u"Harbor Lane Hardware"_s;
    company().phone = u"603-555-0147"_s;
    company().tagline = QString();
    modReports::printReceipt(receiptOfType(Receipt::ProductReceipt), 3);

    ASSERT_EQ(delivery().delivered.size(), 1);
    const MailMessage &mail = delivery().delivered[0].mail;
    EXPECT_EQ(mail.to, u"ruth@example.org"_s);
    EXPECT_EQ(mail.subject, u"Your receipt from Harbor Lane Hardware"_s);
    EXPECT_EQ(mail.body, u"Your receipt, 26-00031, is attached\r\n\r\nHarbor Lane Hardware\r\n"
                         "603-555-0147\r\n\r\n"_s);
    ASSERT_EQ(mail.attachments.size(), 1);
    EXPECT_EQ(mail.attachments[0].fileName, u"Receipt 26-00031.pdf"_s);
    EXPECT_EQ(mail.attachments[0].mimeType, u"application/pdf"_s);
    EXPECT_TRUE(pdfToText(mail.attachments[0].data).contains(u"Ruth Abara"_s));
}

TEST_F(PrintReceiptTest, FailuresShowOneBoxAndReturn) {
    modReports::printReceipt(receiptOfType(4), 0); // an opening balance has no sheet form
    modReports::printReceipt(999, 1);              // no such receipt: still tried, untitled

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    const QString prefix = u"Error | An error occured while printing the receipt:  "_s;
    EXPECT_TRUE(lines[0].startsWith(prefix)) << lines[0].toStdString();
    EXPECT_TRUE(lines[0].endsWith(u" | Critical"_s));
    EXPECT_TRUE(lines[1].contains(Paths::resourceFolder())) << lines[1].toStdString();
    EXPECT_TRUE(delivery().delivered.isEmpty());
}

TEST_F(PrintReceiptTest, VoidIsOnlySetForAVoidReceipt) {
    modReports::printReceipt(receiptOfType(0, Receipt::Void), 0);
    modReports::printReceipt(receiptOfType(0), 0);
    EXPECT_TRUE(
        pdfToText(ReportPainter::toPdf(delivery().delivered[0].report)).contains(u"VOID"_s));
    EXPECT_FALSE(deliveredText().contains(u"VOID"_s));
}

TEST_F(PrintReceiptTest, MailFailureReachesTheErrorBoxAndTheSentBoxStillComes) {
    installReportDelivery(std::make_unique<DesktopReportDelivery>()); // the stand-in mailer
    const qint32 id = receiptOfType(Receipt::ProductReceipt);

    modReports::emailReceipt(id);

    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Error | An error occured while printing the receipt:  "_s));
    EXPECT_EQ(lines[1], u"Email Receipt | Receipt has been sent | Information"_s);
}

TEST_F(PrintReceiptTest, EmailChecksShowTheirBoxes) {
    company().mailServer.clear();
    EXPECT_FALSE(modReports::emailIsSetUp());
    company().mailServer = u"smtp.example.org"_s;
    EXPECT_TRUE(modReports::emailIsSetUp());
    EXPECT_FALSE(modReports::emailAddressGiven(QString()));
    EXPECT_TRUE(modReports::emailAddressGiven(u"a@b.c"_s));

    EXPECT_EQ(boxes().lines(),
              QStringList({u"Email Settings Required | Your email settings have not been "
                           "configured.  Please go to Options and click the Email tab to set up "
                           "your outbound email | Exclamation"_s,
                           u"Missing Email | Please provide an email address | Exclamation"_s}));
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
