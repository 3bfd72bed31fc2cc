#include "output/modreports.h"

#include "app/company.h"
#include "app/session.h"
#include "customers/payee.h"
#include "output/reportrunner.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "receipts/receipt.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("modReports", text);
}

void showPrintError(const BriskoError &error) {
    dialogs().message(tr("An error occured while printing the receipt:  ") + error.description(),
                      tr("Error"), Dialogs::Icon::Critical);
}

// The customer's address for a mailed receipt; empty when the customer is gone.
QString payeeEmail(qint32 payeeID) {
    Payee payee;
    payee.LoadPayeeInfo(payeeID);
    return payee.email;
}

QString receiptMailBody(const QString &receiptNumber) {
    const Company &c = company();
    const QString lineBreak = u"\r\n"_s;
    return tr("Your receipt, ") + receiptNumber + tr(", is attached") + lineBreak + lineBreak +
           c.companyName + lineBreak + c.phone + lineBreak + lineBreak + c.tagline;
}

QString existingLogo() {
    const QString path = Paths::logoPath();
    return QFileInfo::exists(path) ? path : QString();
}

bool isEmailMode(qint16 mode) {
    return mode == modReports::PrepareEmailMode || mode == modReports::EmailMode;
}

void runReceipt(qint32 receiptID, qint16 mode) {
    const Company &c = company();
    ReportRunner runner;
    runner.connectionString = session().connectionString;
    runner.hideSalesTax = c.hideSalesTax;
    runner.receiptID = receiptID;
    runner.hideDiscountField = c.hideDiscountField;
    runner.isTaxExempt = c.isTaxExempt;
    runner.otherFieldName = c.otherFieldName;
    runner.logoPath = existingLogo();
    runner.companyName = c.companyName;

    QString templateName;
    QString receiptNumber;
    qint32 payeeID = 0;
    Receipt receipt;
    if (receipt.GetReceipt(receiptID, {})) {
        templateName = modReports::receiptTemplate(receipt.receiptType, c.usePOSPrinter);
        if (receipt.status == Receipt::Void)
            runner.isVoid = true;
        receiptNumber = receipt.receiptNumber;
        payeeID = receipt.payeeID;
    }
    if (isEmailMode(mode)) {
        runner.workFolder = Paths::resourceFolder();
        runner.emailTo = payeeEmail(payeeID);
        runner.emailSubject = tr("Your receipt from ") + c.companyName;
        runner.emailBody = receiptMailBody(receiptNumber);
    }
    runner.runReport(Paths::resourceFolder() + templateName, true, tr("Receipt ") + receiptNumber,
                     modReports::runnerMode(mode));
}

} // namespace

namespace modReports {

QString receiptTemplate(qint16 receiptType, bool usePOSPrinter) {
    const QString product = u"/reports/forms/ProductReceipt"_s;
    const QString basic = u"/reports/forms/BasicReceipt"_s;
    const QString roll = usePOSPrinter ? u"_3Inch"_s : QString();
    switch (receiptType) {
    case Receipt::ProductReceipt:
        return product + roll + u".mrt"_s;
    case Receipt::ServiceReceipt:
    case Receipt::AccountPayment:
        return basic + roll + u".mrt"_s;
    default:
        // A receipt printer falls back to the product form; a sheet printer has none.
        return usePOSPrinter ? product + roll + u".mrt"_s : QString();
    }
}

qint32 runnerMode(qint16 mode) {
    switch (mode) {
    case ScreenMode:
        return ReportRunner::ToScreen;
    case PrepareEmailMode:
        return ReportRunner::PrepareEmail;
    case EmailMode:
        return ReportRunner::ToEmail;
    default:
        return ReportRunner::ToPrinter;
    }
}

Ledger ledgerOf(qint16 reportType) {
    switch (reportType) {
    case 0:
        return {u"ReceiptLedger.mrt"_s, tr("Receipt Ledger")};
    case 1:
        return {u"InventorySoldLedger.mrt"_s, tr("Inventory Sold Ledger")};
    case 2:
        return {u"ServicesSoldLedger.mrt"_s, tr("Service Ledger")};
    case 6:
        return {u"ServiceBreakdownReport.mrt"_s, tr("Service Breakdown Report")};
    case 7:
        return {u"InventorySoldDetailLedger.mrt"_s, tr("Inventory Sold Detail Ledger")};
    default:
        return {};
    }
}

void printReceipt(qint32 receiptID, qint16 mode) {
    try {
        runReceipt(receiptID, mode);
    } catch (const BriskoError &error) {
        showPrintError(error);
    }
}

void printLedger(qint16 reportType, qint16 mode, const QString &emailAddress,
                 const QString &templateName, const QString &reportTitle) {
    try {
        ReportRunner runner;
        runner.connectionString = session().connectionString;
        if (isEmailMode(mode)) {
            runner.workFolder = Paths::resourceFolder();
            runner.emailTo = emailAddress;
        }
        const Ledger ledger =
            reportType == 8 ? Ledger{templateName, reportTitle} : ledgerOf(reportType);
        runner.runReport(Paths::resourceFolder() + u"/reports/"_s + ledger.templateName, false,
                         ledger.title, runnerMode(mode));
    } catch (const BriskoError &error) {
        showPrintError(error);
    }
}

bool emailIsSetUp() {
    if (!company().mailServer.isEmpty())
        return true;
    dialogs().message(tr("Your email settings have not been configured.  Please go to Options "
                         "and click the Email tab to set up your outbound email"),
                      tr("Email Settings Required"), Dialogs::Icon::Exclamation);
    return false;
}

bool emailAddressGiven(const QString &address) {
    if (!address.isEmpty())
        return true;
    dialogs().message(tr("Please provide an email address"), tr("Missing Email"),
                      Dialogs::Icon::Exclamation);
    return false;
}

// printReceipt shows its own failures, so the box below comes whatever happened.
void emailReceipt(qint32 receiptID) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    printReceipt(receiptID, EmailMode);
    restoreCursor.dismiss();
    QApplication::restoreOverrideCursor();
    dialogs().message(tr("Receipt has been sent"), tr("Email Receipt"), Dialogs::Icon::Information);
}

} // namespace modReports
