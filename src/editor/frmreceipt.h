#pragma once

#include "app/currency.h"
#include "app/modalscreen.h"

#include <memory>

class CustomerListModel;
class Payee;
class Product;
class ReceiptSave;
class QAction;
class QKeyEvent;
class QLineEdit;
class QTreeWidgetItem;
class QWidget;
class Receipt;

namespace Ui {
class frmReceipt;
}

// The receipt editor: a receipt is written, viewed and changed here. One
// screen serves the three kinds (product, service, account payment) and
// three states: new (receiptID 0), view (an existing receipt, read-only) and
// edit (the view after "Edit Receipt"). The caller sets receiptID, shows it
// modal and reads receiptChanged when it has closed.
//
// The screen keeps a receipt's figures in its own fields and labels while it
// is open; calculateTotals works the money out after every change. The
// customer is found by name as it is typed (useAutoComplete) or through the
// customer list as a picker.
class frmReceipt : public ModalScreen {
    Q_OBJECT

public:
    explicit frmReceipt(QWidget *parent = nullptr);
    ~frmReceipt() override;

    qint32 receiptID = 0;        // 0 opens a new receipt
    bool receiptChanged = false; // the receipt was saved or voided while open

    // The edit state, as a caller that opens a receipt for changing asks for it.
    void beginEdit();
    // Shows the receipt on the screen through the receipt output.
    void previewReceipt();
    // Voids the shown receipt after asking, with a reason the user may give.
    void voidReceipt();
    // Escape and the close box: a new receipt is only dropped after asking.
    void reject() override;

protected:
    void load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // Opening and loading (frmreceipt.cpp).
    void createToolIcons();
    void prepareProductList();
    void connectControls();
    void applyCompanySettings();
    void setEditable(bool enabled);
    void applyRestrictedReceiver();
    void loadPaymentTypes();
    void loadCustomFields();
    void loadServices();
    void loadStates();
    void loadReceipt();
    void showReceipt(const Receipt &receipt);
    void setStateText(const QString &state);
    void loadProducts();
    void selectView(int index);
    void viewChanged(int index);
    void paymentTypeChanged();
    void serviceChosen();
    void applyService(qint32 serviceID);
    void editReceipt();
    void printReceipt(qint16 mode);
    void tabChanged(int index);
    void setTools(std::initializer_list<QAction *> tools, bool enabled);

    // Money (receipttotalsview.cpp).
    void calculateTotals();
    bool checkAmountField(QLineEdit *field);
    bool descriptionFocused();
    bool receivedByKey(QKeyEvent *key);

    // The lines of a product receipt (receiptlines.cpp).
    void addProduct();
    void editProduct();
    void removeProduct();
    bool productListKey(QKeyEvent *key);
    void showLine(QTreeWidgetItem *line, const Product &item);
    static Currency lineTotal(const QTreeWidgetItem *line);
    QList<Product> linesOnScreen() const;

    // Saving, voiding and closing (receiptsaving.cpp).
    void saveForm(bool closeAfter);
    bool checkRequired();
    bool askAboutCustomer(ReceiptSave &save);
    void fillPayee(ReceiptSave &save);
    void fillReceipt(ReceiptSave &save);
    void zeroInvalidAmounts();
    void savedReceipt(const ReceiptSave &save, bool wasNew);
    void showPrintOptions(const ReceiptSave &save);
    void startNextReceipt();
    void clearForm();
    bool confirmClose();

    // The customer (receiptcustomer.cpp).
    void prepareCustomerMatching();
    void payeeNameChanged();
    void searchCustomers(const QString &text);
    void pickCustomer();
    void chooseCustomer();
    void loadCustomer();
    void showPayee(const Payee &payee);
    void showCustomerBalance();
    void clearCustomer();
    void showCustomerPanel();
    void hideCustomerPanel();
    void placeCustomerPanel();
    bool payeeNameEvent(QEvent *event);
    bool customerMatchKey(QKeyEvent *key);
    void markCustomerChanged();

    std::unique_ptr<Ui::frmReceipt> ui;
    CustomerListModel *m_matches = nullptr;

    qint32 customerID = 0;    // the customer picked while the screen is open
    qint32 loadedPayeeID = 0; // payeeID of the loaded receipt
    QString loadedNumber;     // receiptNumber of the loaded receipt
    Currency customerBalance; // the picked customer's balance
    Currency productTotal;    // sum of the lines
    bool isProductView = false;
    bool customerChanged = false; // an address field changed after the customer was picked
    bool askBeforeClose = false;
    bool loadingReceipt = false;
    bool skipNameSearch = false; // the next change of the name starts no search
    bool customerListPending = false;
    bool firstFocusDone = false;
    bool skipDescSelect = false; // the next focus on txtDesc leaves its text unselected
    bool hasCustomFields = false;
    QWidget *firstCustomField = nullptr;
    bool choosingCustomer = false; // the picker is open
};
