#pragma once

#include "catalogue/cataloguescreen.h"

#include <memory>

namespace Ui {
class frmPayMethod;
}

// "Payment Method Admin": the payment methods a receipt can name. A method a
// receipt uses is not deleted; it is set inactive, which keeps it here and
// takes it out of the receipt editor's list. "Other" has no row, so it is
// not in this list.
class frmPayMethod : public CatalogueScreen {
    Q_OBJECT

public:
    explicit frmPayMethod(QWidget *parent = nullptr);
    ~frmPayMethod() override;

protected:
    void load() override;

private:
    void loadPaymentMethods();
    void viewSelectedMethod();
    void addMethod();
    void editMethod();
    void cancelEdit();
    void saveMethod();
    void confirmDelete();
    void deletePayMethod(qint32 id);

    void setDetailsEnabled(bool enabled);
    void returnToIdle();

    std::unique_ptr<Ui::frmPayMethod> ui;
    qint32 currentPayMethodID = 0; // the row on show, 0 for a new one
};
