#pragma once

#include <QString>

// Everything that leaves Brisko on paper, on the screen or by e-mail goes
// through here and the report runner.
namespace modReports {

// printReceipt and printLedger modes.
constexpr qint16 ScreenMode = 0;
constexpr qint16 PrinterMode = 1;
constexpr qint16 PrepareEmailMode = 2;
constexpr qint16 EmailMode = 3;

// Renders a receipt and sends it to the screen, the printer or the
// customer's e-mail. Shows its own failure box and never raises.
void printReceipt(qint32 receiptID, qint16 mode);

// Runs one of the ledgers by its report type (0, 1, 2, 6, 7), or the
// template and title given when the type is 8. Shows its own failure box.
void printLedger(qint16 reportType, qint16 mode, const QString &emailAddress,
                 const QString &templateName, const QString &reportTitle);

// The receipt template for a receipt type, relative to the resource folder;
// empty when there is none.
QString receiptTemplate(qint16 receiptType, bool usePOSPrinter);

// The runner's output mode for a printReceipt or printLedger mode.
qint32 runnerMode(qint16 mode);

// The ledger template file (in reports/) and title of a report type, both
// empty for a type without a ledger.
struct Ledger {
    QString templateName;
    QString title;
};
Ledger ledgerOf(qint16 reportType);

// The checks in front of sending a receipt by e-mail. Each shows its box and
// gives false when the mail cannot go: the server is not set up, or the
// address is empty.
bool emailIsSetUp();
bool emailAddressGiven(const QString &address);

// Sends a receipt by e-mail under the wait cursor, then says it has been sent.
void emailReceipt(qint32 receiptID);

} // namespace modReports
