#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmPrintOption;
}

// Shown by the receipt editor after a save: says the receipt's number and
// offers to print it or to e-mail it to the customer. The caller sets the
// four fields below before showing it.
class frmPrintOption : public ModalScreen {
    Q_OBJECT

public:
    explicit frmPrintOption(QWidget *parent = nullptr);
    ~frmPrintOption() override;

    qint32 receiptID = 0;
    QString receiptNumber;
    QString email; // the customer's address, offered for the mail
    qint32 payeeID = 0;

protected:
    void load() override;

private:
    void printReceipt();
    void emailReceipt();
    void keepAddress();

    std::unique_ptr<Ui::frmPrintOption> ui;
};
