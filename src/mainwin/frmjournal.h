#pragma once

#include "app/modalscreen.h"

#include <QStringList>
#include <memory>

class JournalModel;
class QAction;
class QMenu;
class QPoint;

namespace Ui {
class frmJournal;
}

// The searchable register of every receipt: filters on top, the hits below,
// and on a hit print, preview, view or edit, change of status and delete.
class frmJournal : public ModalScreen {
    Q_OBJECT

public:
    explicit frmJournal(QWidget *parent = nullptr);
    ~frmJournal() override;

    // Voids the selected receipt after asking, for screens that list
    // receipts through the journal.
    void voidReceipt();

protected:
    void load() override;

private:
    void createToolBar();
    void createPopupMenu();
    void prepareList();
    void applyAllDates();

    // Searches with the filters; the custom terms count only when asked.
    void getReceipts(bool useCustomFields);
    void findReceipts(bool useCustomFields);
    void showSearchOutcome();
    void searchCustomFields();
    void clearCustomFields();

    qint32 selectedReceiptID() const;
    void printSelected(qint16 mode);
    void viewSelected();
    void changeStatus();
    void deleteKey();
    void deleteSelected();
    void showPopup(const QPoint &position);

    std::unique_ptr<Ui::frmJournal> ui;
    JournalModel *m_receipts = nullptr;
    QAction *m_print = nullptr;
    QAction *m_printPreview = nullptr;
    QMenu *mnuJournal = nullptr;
    QAction *mnuPrint = nullptr;
    QAction *mnuStatus = nullptr;
    QAction *mnuDelete = nullptr;
    QAction *mnuEdit = nullptr;
    QStringList m_customValues{6}; // the custom search values, customField1 to 6
};
