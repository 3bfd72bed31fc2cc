#include "customers/frmcustomerlist.h"
#include "ui_frmCustomerList.h"

#include "app/database.h"
#include "customers/customerlistmodel.h"
#include "customers/frmcustprop.h"
#include "platform/dialogs.h"

#include <QHeaderView>
#include <QIcon>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

// How many rows the columns are measured on: enough to fit what shows,
// few enough that a list of every customer sizes at once.
constexpr int kMeasuredRows = 200;
constexpr int kWidestColumn = 320;

const QString kColumns =
    u"SELECT payeeID, payeeName, address1, city, state, phone FROM tblPayee "_s;

// Address, city, state and phone are read without a test for Null.
CustomerListRow customerRow(const db::Cells &cells) {
    return {.payeeID = cells.int32(0),
            .payeeName = cells.text(1),
            .address1 = cells.text(2),
            .city = cells.text(3),
            .state = cells.text(4),
            .phone = cells.text(5)};
}

} // namespace

frmCustomerList::frmCustomerList(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmCustomerList>())
    , m_customers(new CustomerListModel(CustomerListModel::Layout::Search, this)) {
    ui->setupUi(this);
    createToolBar();
    prepareList();

    connect(ui->txtName, &QLineEdit::returnPressed, this, &frmCustomerList::runSearch);
    connect(ui->cmdSearch, &QPushButton::clicked, this, &frmCustomerList::runSearch);
    connect(ui->Command2, &QPushButton::clicked, this, &frmCustomerList::retrieveAll);
    // A double click, or Enter on a row.
    connect(ui->lstCustomers, &QAbstractItemView::activated, this, &frmCustomerList::openCustomer);
}

frmCustomerList::~frmCustomerList() = default;

void frmCustomerList::createToolBar() {
    addCloseTool(addToolBar(ui->layoutMain));
}

void frmCustomerList::prepareList() {
    ui->lstCustomers->setModel(m_customers);
    QHeaderView *header = ui->lstCustomers->header();
    header->setAccessibleName(tr("Customer columns"));
    header->setResizeContentsPrecision(kMeasuredRows);
    header->setMaximumSectionSize(kWidestColumn);
    header->setSortIndicator(CustomerListModel::Name, Qt::AscendingOrder);
    ui->lstCustomers->setSortingEnabled(true);
}

void frmCustomerList::load() {
    ui->txtName->setFocus();
}

void frmCustomerList::runSearch() {
    const SearchType type = ui->optAny->isChecked()    ? SearchType::AppearsInAny
                            : ui->optEnds->isChecked() ? SearchType::EndsWith
                                                       : SearchType::BeginsWith;
    searchCustomerList(ui->txtName->text(), type);
}

void frmCustomerList::retrieveAll() {
    searchCustomerList(QString(), SearchType::All);
}

void frmCustomerList::searchCustomerList(const QString &text, SearchType searchType) {
    const bool filled =
        runCommand(tr("An error has occured:  "), [&] { fillList(text, searchType); });
    if (filled && m_customers->rowCount() == 0) {
        dialogs().message(tr("No records were found for your search criteria."), tr("No Records"),
                          Dialogs::Icon::Information);
    }
}

// The name matched by `text` as the option says; an empty text matches all.
QString frmCustomerList::namePattern(const QString &text, SearchType searchType) {
    const QString escaped = db::escapeLike(text);
    switch (searchType) {
    case SearchType::BeginsWith:
        return escaped + u'%';
    case SearchType::AppearsInAny:
        return u'%' + escaped + u'%';
    default:
        return u'%' + escaped;
    }
}

// A row that fails ends the filling; the rows before it stay.
void frmCustomerList::fillList(const QString &text, SearchType searchType) {
    QString sql = kColumns;
    db::Params params;
    if (searchType != SearchType::All) {
        sql += uR"(WHERE payeeName LIKE ? ESCAPE '\' )"_s;
        params.append(namePattern(text, searchType));
    }
    sql += u"ORDER BY payeeName"_s;

    m_customers->clear();
    QList<CustomerListRow> rows;
    const auto show = qScopeGuard([&] {
        m_customers->setRecords(std::move(rows));
        showHits();
    });
    db::forEachRow(sql, params,
                   [&rows](const db::Cells &cells) { rows.append(customerRow(cells)); });
}

// The rows come in name order; the header says so without sorting again.
void frmCustomerList::showHits() {
    QHeaderView *header = ui->lstCustomers->header();
    {
        const QSignalBlocker quiet(header);
        header->setSortIndicator(CustomerListModel::Name, Qt::AscendingOrder);
    }
    header->viewport()->update();
    if (m_customers->rowCount() > 0)
        ui->lstCustomers->scrollToTop();
    // A little air between the columns, which contents alone would not
    // leave; the last column takes whatever room is left.
    const int air = 2 * fontMetrics().averageCharWidth();
    for (int column = 0; column < m_customers->columnCount() - 1; ++column) {
        ui->lstCustomers->resizeColumnToContents(column);
        header->resizeSection(column, header->sectionSize(column) + air);
    }
}

void frmCustomerList::openCustomer(const QModelIndex &index) {
    const qint32 payeeID = m_customers->keyAt(index.row());
    if (payeeID == 0)
        return;
    if (pickMode) {
        selectedID = payeeID;
        accept();
        return;
    }
    // Afterwards the search runs again, so that the list shows what the
    // sheet changed or deleted.
    frmCustProp sheet(this);
    sheet.payeeID = payeeID;
    sheet.exec();
    runSearch();
}
