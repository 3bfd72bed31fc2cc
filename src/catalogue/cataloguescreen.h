#pragma once

#include "app/modalscreen.h"
#include "catalogue/cataloguelistmodel.h"

#include <initializer_list>

class QAbstractItemView;

// The shape the catalogue's list screens share: a list of records, each row
// keeping its record's key, beside a detail frame that stays disabled until
// Add or Edit; Save and Cancel return it to the disabled state. The screen's
// .ui holds the list, the frame and a tool bar with ID_Close; this class
// holds the rows and what every such screen asks of its list.
class CatalogueScreen : public ModalScreen {
    Q_OBJECT

protected:
    CatalogueScreen(QStringList headers, QWidget *parent);

    // Shows the rows through `list`: whole rows, one at a time, a click on a
    // heading sorts, columns as wide as their texts.
    void attachList(QAbstractItemView *list);

    CatalogueListModel &rows() { return m_rows; }
    // Replaces the rows; a sort the person chose by a heading stays applied.
    void showRows(QList<CatalogueListModel::Entry> entries);
    bool hasRows() const { return m_rows.rowCount() > 0; }

    // The selected row, or -1.
    int selectedRow() const;
    // The selected row; with none selected it fails as the runtime did on
    // a list without a selected item.
    int requireSelectedRow() const;
    qint32 selectedKey() const { return m_rows.entry(requireSelectedRow()).key; }
    void selectRow(int row);

    static void enableAll(std::initializer_list<QWidget *> widgets, bool enabled);

private:
    void fitColumns();

    CatalogueListModel m_rows;
    QAbstractItemView *m_list = nullptr;
};
