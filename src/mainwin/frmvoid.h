#pragma once

#include "app/modalscreen.h"
#include "receipts/receipt.h"

#include <memory>

namespace Ui {
class frmVoid;
}

// Sets a receipt, picked by its number, to issued or void, with the reason of
// a void. A caller may set receiptNumber first: it is looked up at once.
class frmVoid : public ModalScreen {
    Q_OBJECT

public:
    explicit frmVoid(QWidget *parent = nullptr);
    ~frmVoid() override;

    QString receiptNumber;

protected:
    void load() override;

private:
    void fillNumbers();
    void lookUp();
    void findReceipt();
    void numberEdited();
    void statusChosen();
    void applyStatus();

    std::unique_ptr<Ui::frmVoid> ui;
    std::unique_ptr<Receipt> m_receipt; // the receipt last looked up
};
