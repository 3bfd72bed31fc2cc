#include "catalogue/cataloguescreen.h"

#include "platform/briskoerror.h"

#include <QHeaderView>
#include <QTreeView>

namespace {

constexpr int kObjectNotSet = 91;

} // namespace

CatalogueScreen::CatalogueScreen(QStringList headers, QWidget *parent)
    : ModalScreen(parent)
    , m_rows(std::move(headers)) {}

void CatalogueScreen::attachList(QAbstractItemView *list) {
    m_list = list;
    list->setModel(&m_rows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (auto *table = qobject_cast<QTreeView *>(list)) {
        table->setRootIsDecorated(false);
        table->setUniformRowHeights(true);
        table->setAllColumnsShowFocus(true);
        // No heading is sorted until the person clicks one: the rows come in
        // the order their query gives.
        table->header()->setSortIndicator(-1, Qt::AscendingOrder);
        table->setSortingEnabled(true);
        table->header()->setStretchLastSection(true);
        table->header()->setAccessibleName(tr("%1 columns").arg(list->accessibleName()));
    }
}

void CatalogueScreen::showRows(QList<CatalogueListModel::Entry> entries) {
    m_rows.setEntries(std::move(entries));
    if (auto *table = qobject_cast<QTreeView *>(m_list)) {
        const QHeaderView *header = table->header();
        m_rows.sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    }
    fitColumns();
}

// Sized from the rows in view, so that a long list fills without a pause.
void CatalogueScreen::fitColumns() {
    auto *table = qobject_cast<QTreeView *>(m_list);
    if (!table)
        return;
    constexpr int kBreathingSpace = 16;
    for (int column = 0; column + 1 < m_rows.columnCount(); ++column) {
        table->resizeColumnToContents(column);
        table->setColumnWidth(column, table->columnWidth(column) + kBreathingSpace);
    }
}

int CatalogueScreen::selectedRow() const {
    const QModelIndexList selected = m_list->selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.first().row();
}

int CatalogueScreen::requireSelectedRow() const {
    const int row = selectedRow();
    if (row < 0)
        throw BriskoError(kObjectNotSet, tr("Object variable or With block variable not set"));
    return row;
}

void CatalogueScreen::selectRow(int row) {
    const QModelIndex index = m_rows.index(row, 0);
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
}

void CatalogueScreen::enableAll(std::initializer_list<QWidget *> widgets, bool enabled) {
    for (QWidget *widget : widgets)
        widget->setEnabled(enabled);
}
