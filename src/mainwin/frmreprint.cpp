#include "mainwin/frmreprint.h"
#include "ui_frmReprint.h"

#include "app/session.h"
#include "output/modreports.h"
#include "platform/dialogs.h"
#include "receipts/receipt.h"

#include <QMouseEvent>

frmReprint::frmReprint(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmReprint>()) {
    ui->setupUi(this);
    // A click on the (disabled) number box chooses a specific receipt; the
    // box's frame sees the click.
    ui->fraNumber->installEventFilter(this);
    connect(ui->receiptOption0, &QRadioButton::toggled, this, &frmReprint::optionChosen);
    connect(ui->cmdPrint, &QPushButton::clicked, this, &frmReprint::printChosen);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmReprint::reject);
}

frmReprint::~frmReprint() = default;

bool frmReprint::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->fraNumber && event->type() == QEvent::MouseButtonPress) {
        ui->receiptOption1->setChecked(true);
        ui->txtReceiptNumber->setFocus();
    }
    return ModalScreen::eventFilter(watched, event);
}

void frmReprint::optionChosen() {
    ui->txtReceiptNumber->setEnabled(ui->receiptOption1->isChecked());
}

void frmReprint::printChosen() {
    qint32 receiptID = 0;
    if (!runCommand(tr("An error has occured:  "), [&] { receiptID = chosenReceiptID(); }))
        return;
    if (receiptID > 0)
        modReports::printReceipt(receiptID, ui->chkDisplay->isChecked() ? modReports::ScreenMode
                                                                        : modReports::PrinterMode);
}

// The last receipt saved in this run, else the newest in the file; or the
// receipt of the number typed. 0 after the box that says why not.
qint32 frmReprint::chosenReceiptID() {
    Receipt receipt;
    if (ui->receiptOption0->isChecked()) {
        const qint32 receiptID =
            session().lastReceiptID >= 1 ? session().lastReceiptID : receipt.getLastReceiptID();
        if (receiptID == 0)
            dialogs().message(tr("No receipts were found in the database."), tr("Print Receipt"),
                              Dialogs::Icon::Exclamation);
        return receiptID;
    }
    if (!receipt.GetReceipt(0, ui->txtReceiptNumber->text())) {
        dialogs().message(tr("Receipt number entered was not found.  Please try again."),
                          tr("Unknown Receipt Number"), Dialogs::Icon::Exclamation);
        return 0;
    }
    return receipt.receiptID;
}
