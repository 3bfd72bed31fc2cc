// The print dialog after a save and the Report Manager.
#include "reportoutputtest.h"

#include "app/company.h"
#include "output/frmprintoption.h"
#include "output/frmreports.h"
#include "platform/paths.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

using Where = ReportOutputTest::Delivered::Where;

namespace {

QLineEdit *emailField(const frmPrintOption &screen) {
    return control<QLineEdit>(screen, u"txtEmail"_s);
}

QStringList listed(const frmReports &screen) {
    QStringList names;
    const QListWidget *list = control<QListWidget>(screen, u"reports"_s);
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text());
    return names;
}

} // namespace

class OutputScreensTest : public ReportOutputTest {
protected:
    void SetUp() override {
        ReportOutputTest::SetUp();
        payee = addCustomer(u"Ruth Abara"_s, u"ruth@example.org"_s);
        receipt =
            addProductReceipt(u"26-00031"_s, QDateTime(QDate(2026, 5, 6), QTime(9, 30)), payee, {});
    }

    // Opens the print dialog as the receipt editor does after a save.
    template <typename Act> void afterSave(Act &&act) {
        driveModal<frmPrintOption>(
            [this] {
                frmPrintOption screen;
                screen.receiptID = receipt;
                screen.email = u"ruth@example.org"_s;
                screen.payeeID = payee;
                screen.receiptNumber = u"26-00031"_s;
                screen.exec();
            },
            std::forward<Act>(act));
    }

    static QString storedEmail(qint32 id) {
        return db::readFirst(u"SELECT email FROM tblPayee WHERE payeeID = ?"_s, {id})
            ->text(u"email"_s);
    }

    qint32 payee = 0;
    qint32 receipt = 0;
};

TEST_F(OutputScreensTest, PrintOptionSaysTheNumberAndPrintsOnEveryPress) {
    afterSave([&](frmPrintOption &screen) {
        EXPECT_EQ(screen.windowTitle(), u"Print & Email"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(control<QLabel>(screen, u"Label1"_s)->text(),
                  u"Receipt Number 26-00031 has beeen saved."_s);
        EXPECT_EQ(emailField(screen)->text(), u"ruth@example.org"_s);
        click(screen, u"cmdPrint"_s);
        click(screen, u"cmdPrint"_s);
        EXPECT_TRUE(screen.isVisible());
        click(screen, u"cmdClose"_s);
    });
    ASSERT_EQ(delivery().delivered.size(), 2);
    for (const Delivered &out : delivery().delivered) {
        EXPECT_EQ(out.where, Where::Printer);
        EXPECT_EQ(out.report.title, u"Receipt 26-00031"_s);
    }
    EXPECT_TRUE(boxes().shown.isEmpty());
}

// Without a mail server the address is not even looked at; an empty address
// is refused; a new one becomes the customer's before the mail goes.
TEST_F(OutputScreensTest, EmailChecksThenKeepsTheAddressAndSends) {
    afterSave([&](frmPrintOption &screen) {
        company().mailServer.clear();
        emailField(screen)->clear();
        click(screen, u"cmdEmail"_s);
        company().mailServer = u"smtp.example.org"_s;
        click(screen, u"cmdEmail"_s);
        EXPECT_TRUE(delivery().delivered.isEmpty());

        emailField(screen)->setText(u"ruth.abara@example.net"_s);
        click(screen, u"cmdEmail"_s);
        EXPECT_TRUE(screen.isVisible());
        click(screen, u"cmdClose"_s);
    });
    EXPECT_EQ(boxes().titles(),
              (QStringList{u"Email Settings Required"_s, u"Missing Email"_s, u"Email Receipt"_s}));
    EXPECT_EQ(boxes().lines().last(), u"Email Receipt | Receipt has been sent | Information"_s);
    EXPECT_EQ(storedEmail(payee), u"ruth.abara@example.net"_s);
    ASSERT_EQ(delivery().delivered.size(), 1);
    EXPECT_EQ(delivery().delivered[0].where, Where::Mail);
    EXPECT_EQ(delivery().delivered[0].mail.to, u"ruth.abara@example.net"_s);
}

// A failed mail leaves the new address written; a customer that cannot be
// loaded stops before the mail, with the bare description.
TEST_F(OutputScreensTest, EmailFailuresKeepTheDialogOpen) {
    company().mailServer = u"smtp.example.org"_s;
    installReportDelivery(std::make_unique<DesktopReportDelivery>()); // the stand-in mailer fails
    afterSave([&](frmPrintOption &screen) {
        emailField(screen)->setText(u"o'neil@example.org"_s);
        click(screen, u"cmdEmail"_s);
        db::execute(u"UPDATE tblPayee SET city = NULL WHERE payeeID = ?"_s, {payee});
        click(screen, u"cmdEmail"_s);
        EXPECT_TRUE(screen.isVisible());
        click(screen, u"cmdClose"_s);
    });
    const QStringList lines = boxes().lines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(u"Error | An error occured while printing the receipt:  "_s));
    EXPECT_EQ(lines[1], u"Email Receipt | Receipt has been sent | Information"_s);
    EXPECT_EQ(lines[2], u" | Payee.loadPayeeInfo:  Invalid use of Null"_s);
    EXPECT_EQ(storedEmail(payee), u"o'neil@example.org"_s);
}

TEST_F(OutputScreensTest, ReportManagerListsTheTemplatesByNameAndRunsNothing) {
    const auto open = [](const auto &act) {
        driveModal<frmReports>(
            [] {
                frmReports screen;
                screen.exec();
            },
            act);
    };
    open([&](frmReports &screen) {
        EXPECT_EQ(screen.windowTitle(), u"Report Manager"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(
            listed(screen),
            (QStringList{u"Inventory Sold Detail Ledger"_s, u"Inventory Sold Ledger"_s,
                         u"Receipt Ledger"_s, u"Service Breakdown Report"_s, u"Service Ledger"_s}));
        control<QListWidget>(screen, u"reports"_s)->setCurrentRow(2);
        click(screen, u"cmdRunReport"_s);
        EXPECT_TRUE(screen.isVisible());
        click(screen, u"cmdClose"_s);
    });
    EXPECT_TRUE(delivery().delivered.isEmpty());
    EXPECT_TRUE(boxes().shown.isEmpty());

    // A folder without templates lists nothing; a missing one says so.
    QDir resources(tempPath(u"resources"_s));
    ASSERT_TRUE(resources.mkpath(u"reports"_s));
    Paths::useResourceFolder(resources.path());
    open([&](frmReports &screen) {
        EXPECT_TRUE(listed(screen).isEmpty());
        screen.reject();
    });
    EXPECT_TRUE(boxes().shown.isEmpty());
    ASSERT_TRUE(resources.rmdir(u"reports"_s));
    open([&](frmReports &screen) { screen.reject(); });
    Paths::useResourceFolder(QString());
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Load Reports | An error has occured:  Path not found | Critical"_s});
}
