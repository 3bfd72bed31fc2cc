#include "output/frmprintoption.h"
#include "ui_frmPrintOption.h"

#include "customers/payee.h"
#include "output/modreports.h"
#include "platform/briskoerror.h"

frmPrintOption::frmPrintOption(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmPrintOption>()) {
    ui->setupUi(this);
    connect(ui->cmdPrint, &QPushButton::clicked, this, &frmPrintOption::printReceipt);
    connect(ui->cmdEmail, &QPushButton::clicked, this, &frmPrintOption::emailReceipt);
    connect(ui->cmdClose, &QPushButton::clicked, this, &frmPrintOption::accept);
}

frmPrintOption::~frmPrintOption() = default;

void frmPrintOption::load() {
    ui->Label1->setText(tr("Receipt Number ") + receiptNumber + tr(" has beeen saved."));
    ui->txtEmail->setText(email);
}

// The dialog stays open: each press prints once more.
void frmPrintOption::printReceipt() {
    modReports::printReceipt(receiptID, modReports::PrinterMode);
}

// The address typed here becomes the customer's for good, before the mail is
// tried. A failure shows its description alone, in a plain untitled box.
void frmPrintOption::emailReceipt() {
    if (!modReports::emailIsSetUp() || !modReports::emailAddressGiven(ui->txtEmail->text()))
        return;
    try {
        keepAddress();
        modReports::emailReceipt(receiptID);
    } catch (const BriskoError &error) {
        showFailure(QString(), error, QString(), Dialogs::Icon::None);
    }
}

void frmPrintOption::keepAddress() {
    Payee payee;
    payee.LoadPayeeInfo(payeeID);
    payee.email = ui->txtEmail->text();
    payee.WritePayee();
}
