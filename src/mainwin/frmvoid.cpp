#include "mainwin/frmvoid.h"
#include "ui_frmVoid.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"

#include <QAbstractItemView>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

frmVoid::frmVoid(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmVoid>()) {
    ui->setupUi(this);
    ui->txtNumber->view()->setAccessibleName(tr("This year's receipts"));
    ui->lstStatus->view()->setAccessibleName(tr("Statuses"));
    // The index of an entry is the status it writes; 0 is no choice.
    ui->lstStatus->addItems({tr("Select"), tr("Issued"), tr("Void")});

    connect(ui->cmdSearch, &QPushButton::clicked, this, &frmVoid::lookUp);
    connect(ui->txtNumber, &QComboBox::activated, this, &frmVoid::lookUp);
    connect(ui->txtNumber, &QComboBox::editTextChanged, this, &frmVoid::numberEdited);
    connect(ui->lstStatus, &QComboBox::activated, this, &frmVoid::statusChosen);
    connect(ui->cmdApply, &QPushButton::clicked, this, &frmVoid::applyStatus);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmVoid::reject);
}

frmVoid::~frmVoid() = default;

void frmVoid::load() {
    runCommand(tr("frmJournal.getReceipts:  "), [this] { fillNumbers(); });
    ui->txtNumber->setEditText(receiptNumber);
    numberEdited();
    if (!receiptNumber.isEmpty())
        lookUp();
    else
        ui->txtNumber->setFocus();
}

// This year's receipts, in date and number order.
void frmVoid::fillNumbers() {
    const QDate today = QDate::currentDate();
    const db::Snapshot rows =
        Receipt().GetReceipts({.startDate = Runtime::shortDate(QDate(today.year(), 1, 1)),
                               .endDate = Runtime::shortDate(today)});
    const QSignalBlocker quiet(ui->txtNumber);
    ui->txtNumber->clear();
    for (const db::Row &row : rows)
        ui->txtNumber->addItem(row.text(u"receiptNumber"_s));
    ui->txtNumber->setEditText(QString());
}

void frmVoid::lookUp() {
    runCommand(tr("An error occured while retrieving the receipt information:  "),
               [this] { findReceipt(); });
}

void frmVoid::findReceipt() {
    m_receipt = std::make_unique<Receipt>();
    if (!m_receipt->GetReceipt(0, ui->txtNumber->currentText())) {
        ui->cmdApply->setEnabled(false);
        ui->lblStatus->clear();
        dialogs().message(tr("Receipt number not found.  Please try again."),
                          tr("Receipt Not Found"), Dialogs::Icon::Information);
        ui->lstStatus->setEnabled(false);
        ui->txtNumber->setFocus();
        return;
    }
    ui->cmdApply->setEnabled(true);
    if (m_receipt->status == Receipt::Issued)
        ui->lblStatus->setText(tr("Issued"));
    else if (m_receipt->status == Receipt::Void)
        ui->lblStatus->setText(tr("Void"));
    ui->lstStatus->setEnabled(true);
    ui->lstStatus->setFocus();
}

// Whatever was looked up no longer counts: retrieve again before writing.
void frmVoid::numberEdited() {
    ui->cmdSearch->setEnabled(!ui->txtNumber->currentText().isEmpty());
    ui->cmdApply->setEnabled(false);
    ui->lblStatus->clear();
    ui->lstStatus->setEnabled(false);
}

void frmVoid::statusChosen() {
    ui->cmdApply->setEnabled(!ui->txtNumber->currentText().isEmpty() &&
                             ui->lstStatus->currentIndex() >= 1);
}

// A cancelled reason still voids; setting back to issued clears the reason.
void frmVoid::applyStatus() {
    if (!m_receipt)
        return;
    const qint16 status = qint16(ui->lstStatus->currentIndex());
    const QString reason = status == Receipt::Void
                               ? dialogs().input(tr("Void Reason"), tr("Void Receipt"))
                               : QString();
    runCommand(tr("An error occured while updating the receipt status:  "), [&] {
        m_receipt->voidReason = reason;
        m_receipt->status = status;
        const bool written = m_receipt->writeReceipt();
        const QString number = m_receipt->receiptNumber;
        dialogs().message(written
                              ? tr("Receipt status has been updated for receipt number ") + number
                              : tr("Receipt status update failed for receipt number ") + number,
                          tr("Success"), Dialogs::Icon::Information);
        m_receipt.reset();
        accept();
    });
}
