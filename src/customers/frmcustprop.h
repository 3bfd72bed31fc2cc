#pragma once

#include "app/modalscreen.h"

#include <memory>

class CustomerTransactionsModel;
class QAction;

namespace Ui {
class frmCustProp;
}

// The sheet of one existing customer: address, opening and present balance
// and the customer's receipts, which can be moved to another customer; and
// the delete of the customer with all its receipts. The caller sets payeeID.
class frmCustProp : public ModalScreen {
    Q_OBJECT

public:
    explicit frmCustProp(QWidget *parent = nullptr);
    ~frmCustProp() override;

    qint32 payeeID = 0;

protected:
    void load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createToolBar();
    void connectValidation();
    void fillStates();
    void applyRights();
    void loadCustomerSheet();
    void showState(const QString &state);
    void loadTransactions();
    void validateCustomer();

    void saveCustomer();
    bool writeCustomer();
    void deleteCustomer();
    void reassign();
    void reassignReceipts(qint32 newID);
    void updateReassignTool();
    void openTransaction(const QModelIndex &index);

    std::unique_ptr<Ui::frmCustProp> ui;
    CustomerTransactionsModel *m_transactions = nullptr;
    QAction *m_save = nullptr;
    QAction *m_delete = nullptr;
    QAction *m_reassign = nullptr;
};
