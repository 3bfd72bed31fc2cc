// The print dialog after a save and the Report Manager.
#include "reportoutputtest.h"

#include "app/company.h"
#include "output/frmprintoption.h"
#include "output/frmreports.h"
#include "platform/paths.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

using Where = ReportOutputTest::Delivered::Where;

class OutputScreensTest : public ReportOutputTest {
protected:
    // Opens the print dialog as the receipt editor does after a save; `act`
    // gets it with its address field.
    template <typename Act> void afterSave(Act &&act) {
        const qint32 payee = addCustomer(u"Ruth Abara"_s, u"ruth@example.org"_s);
        const qint32 receipt =
            addProductReceipt(u"26-00031"_s, QDateTime::currentDateTime(), payee, {});
        driveModal<frmPrintOption>(
            [&] {
                frmPrintOption screen;
                screen.receiptID = receipt;
                screen.email = u"ruth@example.org"_s;
                screen.payeeID = payee;
                screen.receiptNumber = u"26-00031"_s;
                screen.exec();
            },
            [&](frmPrintOption &screen) {
                act(screen, *control<QLineEdit>(screen, u"txtEmail"_s));
                EXPECT_TRUE(screen.isVisible());
                click(screen, u"cmdClose"_s);
            });
        storedEmail = db::readFirst(u"SELECT email FROM tblPayee WHERE payeeID = ?"_s, {payee})
                          ->text(u"email"_s);
    }

    QString storedEmail;
};

// Print works on every press. Without a mail server the address is not even
// looked at; an empty one is refused; a new one becomes the customer's.
TEST_F(OutputScreensTest, PrintOptionPrintsOnEveryPressAndChecksThenKeepsTheAddress) {
    afterSave([&](frmPrintOption &screen, QLineEdit &email) {
        EXPECT_EQ(screen.windowTitle(), u"Print & Email"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(control<QLabel>(screen, u"Label1"_s)->text(),
                  u"Receipt Number 26-00031 has beeen saved."_s);
        EXPECT_EQ(email.text(), u"ruth@example.org"_s);
        click(screen, u"cmdPrint"_s);
        click(screen, u"cmdPrint"_s);
        company().mailServer.clear();
        email.clear();
        click(screen, u"cmdEmail"_s);
        company().mailServer = u"smtp.example.org"_s;
        click(screen, u"cmdEmail"_s);
        EXPECT_EQ(delivery().delivered.size(), 2);
        email.setText(u"ruth.abara@example.net"_s);
        click(screen, u"cmdEmail"_s);
    });
    ASSERT_EQ(delivery().delivered.size(), 3);
    for (const Delivered &out : delivery().delivered.mid(0, 2)) {
        EXPECT_EQ(out.where, Where::Printer);
        EXPECT_EQ(out.report.title, u"Receipt 26-00031"_s);
    }
    EXPECT_EQ(delivery().delivered[2].mail.to, u"ruth.abara@example.net"_s);
    EXPECT_EQ(storedEmail, u"ruth.abara@example.net"_s);
    EXPECT_EQ(boxes().titles(),
              (QStringList{u"Email Settings Required"_s, u"Missing Email"_s, u"Email Receipt"_s}));
    EXPECT_EQ(boxes().lines().mid(1),
              (QStringList{u"Missing Email | Please provide an email address | Exclamation"_s,
                           u"Email Receipt | Receipt has been sent | Information"_s}));
}

// A failed mail leaves the new address written; a customer that cannot be
// loaded stops before the mail, with the bare description.
TEST_F(OutputScreensTest, EmailFailuresKeepTheDialogOpen) {
    company().mailServer = u"smtp.example.org"_s;
    installReportDelivery(std::make_unique<DesktopReportDelivery>()); // the stand-in mailer fails
    afterSave([&](frmPrintOption &screen, QLineEdit &email) {
        email.setText(u"o'neil@example.org"_s);
        click(screen, u"cmdEmail"_s);
        db::execute(u"UPDATE tblPayee SET city = NULL"_s);
        click(screen, u"cmdEmail"_s);
    });
    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(u"Error | An error occured while printing the receipt:  "_s));
    EXPECT_EQ(lines[1], u"Email Receipt | Receipt has been sent | Information"_s);
    EXPECT_EQ(lines[2], u" | Payee.loadPayeeInfo:  Invalid use of Null"_s);
    EXPECT_EQ(storedEmail, u"o'neil@example.org"_s);
}

TEST_F(OutputScreensTest, ReportManagerListsTheTemplatesByNameAndRunsNothing) {
    const auto open = [](const auto &act) {
        return driveModal<frmReports>(
            [] {
                frmReports screen;
                screen.exec();
            },
            [&](frmReports &screen) {
                act(screen);
                QStringList names;
                const QListWidget *list = control<QListWidget>(screen, u"reports"_s);
                for (int row = 0; row < list->count(); ++row)
                    names.append(list->item(row)->text());
                click(screen, u"cmdClose"_s);
                return names;
            });
    };
    const QStringList names = open([](frmReports &screen) {
        EXPECT_EQ(screen.windowTitle(), u"Report Manager"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        control<QListWidget>(screen, u"reports"_s)->setCurrentRow(2);
        click(screen, u"cmdRunReport"_s);
        EXPECT_TRUE(screen.isVisible());
    });
    EXPECT_EQ(names, (QStringList{u"Inventory Sold Detail Ledger"_s, u"Inventory Sold Ledger"_s,
                                  u"Receipt Ledger"_s, u"Service Breakdown Report"_s,
                                  u"Service Ledger"_s}));
    EXPECT_TRUE(delivery().delivered.isEmpty());
    EXPECT_TRUE(boxes().shown.isEmpty());

    Paths::useResourceFolder(tempPath(u"nowhere"_s));
    EXPECT_TRUE(open([](frmReports &) {}).isEmpty());
    Paths::useResourceFolder(QString());
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Load Reports | An error has occured:  Path not found | Critical"_s});
}
