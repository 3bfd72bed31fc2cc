// Saving the receipt on the screen, voiding a stored one, and closing the
// screen. Every question is asked before anything is written; ReceiptSave
// then writes customer, receipt and lines at once or not at all.

#include "editor/frmreceipt.h"
#include "ui_frmReceipt.h"

#include "app/company.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "editor/receiptsave.h"
#include "output/frmprintoption.h"
#include "platform/dialogs.h"
#include "receipts/receipt.h"

using namespace Qt::Literals::StringLiterals;

// A failure leaves the screen with everything typed, and the file as it was,
// so the same save can simply be tried again.
void frmReceipt::saveForm(bool closeAfter) {
    if (!checkRequired()) {
        dialogs().message(tr("Please enter information in the required fields."),
                          tr("Incomplete Form"), Dialogs::Icon::Exclamation);
        return;
    }
    const bool wasNew = receiptID == 0;
    ReceiptSave save;
    bool saved = false;
    runCommand(tr("An error has occured while saving the receipt to the database:  "), [&] {
        fillPayee(save);
        if (!askAboutCustomer(save))
            return;
        zeroInvalidAmounts();
        fillReceipt(save);
        saved = save.save();
    });
    if (!saved)
        return;
    savedReceipt(save, wasNew);
    if (closeAfter) {
        askBeforeClose = false;
        accept();
    } else {
        startNextReceipt();
    }
}

// Marks every required field that is empty, not only the first.
bool frmReceipt::checkRequired() {
    const bool address = company().requireAddress;
    const bool state = ui->txtState->currentIndex() <= 0 && ui->txtState->currentText().isEmpty();
    const struct {
        QLabel *marker;
        bool missing;
    } fields[] = {
        {ui->lblReqField0, ui->txtPayeeName->text().isEmpty()},
        {ui->lblReqField1, address && ui->txtAddress->text().isEmpty()},
        {ui->lblReqField3, address && ui->txtCity->text().isEmpty()},
        {ui->lblReqField4, address && state},
        {ui->lblReqField5, address && ui->txtZip->text().isEmpty()},
        {ui->lblReqField6, !isProductView && ui->txtDesc->toPlainText().isEmpty()},
        {ui->lblReqField2, !isProductView && ui->txtDue->text().isEmpty()},
        {ui->lblReqField11, isProductView && ui->lstProducts->topLevelItemCount() == 0},
        {ui->lblReqField9, ui->txtRecvd->text().isEmpty()},
        {ui->lblReqField8, ui->txtRecvdBy->text().isEmpty()},
    };
    bool complete = true;
    for (const auto &field : fields) {
        field.marker->setVisible(field.missing);
        complete = complete && !field.missing;
    }
    return complete;
}

// An opened receipt always writes to its own customer, whoever was picked.
void frmReceipt::fillPayee(ReceiptSave &save) {
    if (customerID < 0) {
        customerID = 0;
        customerBalance = Currency();
    }
    Payee &payee = save.payee;
    payee.payeeID = loadedPayeeID > 0 ? loadedPayeeID : customerID;
    payee.payeeName = ui->txtPayeeName->text().trimmed();
    payee.address1 = ui->txtAddress->text().trimmed();
    payee.address2 = ui->txtAddress2->text().trimmed();
    payee.city = ui->txtCity->text().trimmed();
    payee.State = ui->txtState->currentText();
    payee.zip = ui->txtZip->text().trimmed();
    payee.phone = ui->txtPhone->text().trimmed();
    payee.email = ui->txtEmail->text().trimmed();
}

// A picked customer whose address was changed may be updated or left as it
// was for a new customer; the new one still starts from the old balance.
bool frmReceipt::askAboutCustomer(ReceiptSave &save) {
    if (!customerChanged || customerID <= 0 || ui->optView2->isChecked())
        return true;
    const QString text =
        tr("You have changed the address for this customer.  ") + u"\r\n\r\n"_s +
        tr("Click YES to update the customer's account with the new information.") + u"\r\n"_s +
        tr("Click NO to create a new customer account.") + u"\r\n\r\n"_s +
        tr("If you create a new account, the customer's account balance WILL NOT be "
           "transferred to the new account.");
    switch (dialogs().message(text, tr("Existing Customer Found"), Dialogs::Icon::Question,
                              Dialogs::Buttons::YesNoCancel)) {
    case Dialogs::Answer::No:
        save.payee.payeeID = 0;
        return true;
    case Dialogs::Answer::Cancel:
        return false;
    default:
        return true;
    }
}

// Amounts that are no numbers count as 0, and the totals follow.
void frmReceipt::zeroInvalidAmounts() {
    for (QLineEdit *amount : {ui->txtOther, ui->txtDiscount, ui->txtDue}) {
        if (!Runtime::isNumeric(amount->text()))
            amount->setText(u"0"_s);
    }
}

void frmReceipt::fillReceipt(ReceiptSave &save) {
    Receipt &receipt = save.receipt;
    receipt.receiptID = receiptID;
    receipt.receiptDate = ui->txtReceiptDate->date().startOfDay();
    receipt.receiptType = qint16(std::max(ui->optView->checkedId(), 0));
    receipt.amountDue =
        Currency::fromText(receipt.receiptType == Receipt::ProductReceipt ? ui->lblSubTotal->text()
                                                                          : ui->txtDue->text());
    receipt.amountReceived = Currency::fromText(ui->txtRecvd->text());
    receipt.balanceRemaining = Currency::fromText(ui->lblBalance->text());
    receipt.amountTax = Currency::fromText(ui->lblTax->text());
    receipt.amountOther = Currency::fromText(ui->txtOther->text());
    receipt.amountDiscount = Currency::fromText(ui->txtDiscount->text());
    receipt.paymentType = qint16(ui->lstPaymentType->currentData().toInt());
    const QString payment = ui->txtCheckNum->text().trimmed();
    if (receipt.paymentType != Receipt::OtherPaymentType)
        receipt.checkNumber = payment;
    else
        receipt.otherPaymentDesc = payment;
    receipt.serviceID =
        ui->lstServices->currentIndex() >= 0 ? qint16(ui->lstServices->currentData().toInt()) : 0;
    receipt.receivedBy = ui->txtRecvdBy->text().trimmed();
    receipt.receiptDesc = ui->txtDesc->toPlainText().trimmed();
    receipt.customField1 = ui->txtCustom1->text();
    receipt.customField2 = ui->txtCustom2->text();
    receipt.customField3 = ui->txtCustom3->text();
    receipt.customField4 = ui->txtCustom4->text();
    receipt.customField5 = ui->txtCustom5->text();
    receipt.customField6 = ui->txtCustom6->text();

    save.lines = linesOnScreen();
    save.loadedNumber = loadedNumber;
    save.customerBalance = customerBalance;
}

// The print options are the one confirmation that a receipt was saved.
void frmReceipt::savedReceipt(const ReceiptSave &save, bool wasNew) {
    customerID = save.payee.payeeID;
    customerBalance = save.customerBalance;
    if (wasNew)
        session().lastReceiptID = save.receipt.receiptID;
    showPrintOptions(save);
    receiptChanged = true;
}

void frmReceipt::showPrintOptions(const ReceiptSave &save) {
    frmPrintOption options(this);
    options.receiptID = save.receipt.receiptID;
    options.email = save.payee.email;
    options.payeeID = save.payee.payeeID;
    options.receiptNumber = save.receipt.receiptNumber;
    options.exec();
}

// Save & New: the screen as for a new receipt, keeping only the date.
void frmReceipt::startNextReceipt() {
    receiptChanged = false;
    skipNameSearch = false;
    customerChanged = false;
    skipDescSelect = false;
    askBeforeClose = false;
    customerID = 0;
    receiptID = 0;
    loadedPayeeID = 0;
    productTotal = Currency();
    customerBalance = Currency();
    loadedNumber = u"0"_s;
    clearForm();
    setEditable(true);
    setTools({ui->ID_SaveNew, ui->ID_SaveClose}, true);
    setTools({ui->ID_Print, ui->ID_PrintPreview, ui->ID_Void, ui->ID_EditReceipt}, false);
    setWindowTitle(tr("New Receipt"));
    ui->SSTab1->setCurrentWidget(ui->tabTransaction);
    ui->txtPayeeName->setFocus();
}

void frmReceipt::clearForm() {
    hideCustomerPanel();
    ui->lblAcctBal->setText(u"0.00"_s);
    ui->lblID->clear();
    ui->lblVoid->hide();
    ui->lblVoidReason->hide();
    ui->lblVoidReason->clear();
    for (QLineEdit *field :
         {ui->txtPayeeName, ui->txtAddress, ui->txtAddress2, ui->txtCity, ui->txtZip, ui->txtPhone,
          ui->txtEmail, ui->txtDue, ui->txtRecvd, ui->txtRecvdBy, ui->txtCheckNum, ui->txtCustom1,
          ui->txtCustom2, ui->txtCustom3, ui->txtCustom4, ui->txtCustom5, ui->txtCustom6})
        field->clear();
    ui->txtDesc->clear();
    ui->txtState->setCurrentIndex(0);
    const int payment = ui->lstPaymentType->findData(company().defaultPaymentType);
    if (payment >= 0)
        ui->lstPaymentType->setCurrentIndex(payment);
    for (QLineEdit *amount : {ui->txtOther, ui->txtDiscount})
        amount->setText(u"0.00"_s);
    for (QLabel *amount : {ui->lblTax, ui->lblTotal, ui->lblSubTotal, ui->lblBalance})
        amount->setText(u"0.00"_s);
    productTotal = Currency();
    ui->chkTaxExempt->setChecked(false);
    for (QLabel *marker : {ui->lblReqField0, ui->lblReqField1, ui->lblReqField2, ui->lblReqField3,
                           ui->lblReqField4, ui->lblReqField5, ui->lblReqField6, ui->lblReqField8,
                           ui->lblReqField9, ui->lblReqField10, ui->lblReqField11})
        marker->hide();
    ui->lstProducts->clear();
    ui->optView0->setEnabled(true);
    ui->optView1->setEnabled(true);
    ui->lstServices->setCurrentIndex(-1);
    applyRestrictedReceiver();
    customerChanged = false;
}

void frmReceipt::voidReceipt() {
    if (dialogs().message(tr("Are you sure you want to void this receipt?"), tr("Confirm"),
                          Dialogs::Icon::Question,
                          Dialogs::Buttons::YesNoCancel) != Dialogs::Answer::Yes)
        return;
    const QString reason = dialogs().input(tr("Void Reason"), tr("Void Receipt"));
    bool voided = false;
    if (!runCommand(tr("An error has occured:  "),
                    [&] { voided = ReceiptSave::voidReceipt(receiptID, reason); }))
        return;
    if (!voided) {
        dialogs().message(tr("Could not void receipt"), tr("Failed"), Dialogs::Icon::Exclamation);
        return;
    }
    dialogs().message(tr("Receipt has been voided!"), tr("Completed"), Dialogs::Icon::Information);
    receiptChanged = true;
    askBeforeClose = false;
    accept();
}

// A new receipt asks before it is dropped, even an empty one; a stored
// receipt being viewed or changed does not.
bool frmReceipt::confirmClose() {
    if (!askBeforeClose)
        return true;
    return dialogs().message(tr("Are you sure you want to cancel this receipt?  Your information "
                                "will not be saved."),
                             tr("Cancel Receipt"), Dialogs::Icon::Question,
                             Dialogs::Buttons::YesNo) == Dialogs::Answer::Yes;
}

void frmReceipt::reject() {
    if (confirmClose())
        ModalScreen::reject();
}
