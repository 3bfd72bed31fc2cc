#pragma once

#include "app/modalscreen.h"

#include <memory>

class CustomerListModel;
class QModelIndex;

namespace Ui {
class frmCustomerList;
}

// Finds customers by name and opens them. The receipt editor uses it as a
// picker: it sets pickMode before showing it and reads selectedID after it
// closed, 0 when nothing was picked.
class frmCustomerList : public ModalScreen {
    Q_OBJECT

public:
    explicit frmCustomerList(QWidget *parent = nullptr);
    ~frmCustomerList() override;

    bool pickMode = false;
    qint32 selectedID = 0;

protected:
    void load() override;

private:
    // How the name is matched; All lists every customer.
    enum class SearchType { All = -1, BeginsWith = 0, AppearsInAny = 1, EndsWith = 2 };

    void createToolBar();
    void prepareList();
    void runSearch();
    void retrieveAll();
    void searchCustomerList(const QString &text, SearchType searchType);
    static QString namePattern(const QString &text, SearchType searchType);
    void fillList(const QString &text, SearchType searchType);
    void showHits();
    void openCustomer(const QModelIndex &index);

    std::unique_ptr<Ui::frmCustomerList> ui;
    CustomerListModel *m_customers = nullptr;
};
