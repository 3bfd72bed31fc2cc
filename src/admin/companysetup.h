#pragma once

#include "app/company.h"
#include "app/runtimeformat.h"
#include "platform/briskoerror.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QString>

// What the options screen and the first-run wizard share about the company's
// own details.
namespace CompanySetup {

// Fills the State/Province drop-down: the US states and the forces' codes,
// an empty entry, then Canada's provinces and territories.
void loadStates(QComboBox *list);
// Shows `state`: its entry when the list has one, else the text as typed.
void showState(QComboBox *list, const QString &state);
// The state to store. The list's first entry stands for no state, an old
// quirk that stored files rely on; any other text is kept as it shows.
QString stateOf(const QComboBox *list);

// The payment type chosen in `list`; no choice at all fails as the old list
// did, with "Invalid property array index".
qint16 chosenPaymentType(const QComboBox *list);

// Copies what the options screen and the wizard both ask for into the
// company record: the address block, the default payment and receipt types,
// the tax rate and whether logins are on. `form` is either screen's Ui.
template <typename Form> void copySharedFields(const Form &form) {
    const qint16 paymentType = chosenPaymentType(form.lstPaymentType);
    Company &c = company();
    c.companyName = form.txtName->text();
    c.address1 = form.txtAddress->text();
    c.address2 = form.txtAddress2->text();
    c.city = form.txtCity->text();
    c.state = stateOf(form.txtState);
    c.zip = form.txtZip->text();
    c.phone = form.txtPhone->text();
    c.defaultPaymentType = paymentType;
    c.taxRate = Runtime::toDouble(form.txtTax->text());
    c.defaultReceiptType = form.optReceipt0->isChecked() ? 0 : 1;
    c.restrictAccess = !form.optSecurity0->isChecked();
}

// True when `text` is a tax rate; otherwise shows the box that says how to
// write one and gives false.
bool taxRateIsValid(const QString &text);

} // namespace CompanySetup
