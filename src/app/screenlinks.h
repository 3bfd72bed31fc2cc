#pragma once

#include <QtGlobal>

class QWidget;

// The few screens a lower subsystem opens in a higher one: the customer
// sheet shows a customer's receipt in the editor, and the editor picks its
// customer through the customer list. Each link is declared here and defined
// beside the screen it opens, so that includes keep going one way while the
// screens still open each other as a person expects.
namespace ScreenLinks {

// Shows receipt `receiptID` in the receipt editor, modal, and discards it.
// True when the receipt was saved or voided while it was open.
bool openReceipt(QWidget *parent, qint32 receiptID);

} // namespace ScreenLinks
