#pragma once

#include "app/modalscreen.h"

#include <memory>

class CustomerListModel;

namespace Ui {
class frmCustPop;
}

// The plain list of every customer, from which one is picked. The caller
// reads selectedID after it closed: 0 when cancelled.
class frmCustPop : public ModalScreen {
    Q_OBJECT

public:
    explicit frmCustPop(QWidget *parent = nullptr);
    ~frmCustPop() override;

    qint32 selectedID = 0;

protected:
    void load() override;

private:
    void loadCustomers();
    void selectCustomer();

    std::unique_ptr<Ui::frmCustPop> ui;
    CustomerListModel *m_customers = nullptr;
};
