#pragma once

#include <QtGlobal>

class QComboBox;

namespace Catalogue {

// Fills a drop-down of payment types as the receipt editor, the options
// screen and the first-run wizard show it: the active methods by name, each
// with its payMethodID as item data, and behind them "Other" with 0. The
// entry of `defaultPaymentType` is selected; "Other" never is, so a default
// of 0 leaves nothing selected.
void loadPaymentTypes(QComboBox *list, qint16 defaultPaymentType);

} // namespace Catalogue
