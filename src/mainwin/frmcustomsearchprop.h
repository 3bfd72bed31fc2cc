#pragma once

#include "app/modalscreen.h"

#include <QStringList>
#include <memory>

namespace Ui {
class frmCustomSearchProp;
}

// Collects the search values of the six custom fields for the receipt
// journal. Only the fields the company has named show. The caller reads
// searchChosen and the values after it closed.
class frmCustomSearchProp : public ModalScreen {
    Q_OBJECT

public:
    explicit frmCustomSearchProp(QWidget *parent = nullptr);
    ~frmCustomSearchProp() override;

    QStringList values;        // six values, for customField1 to customField6
    bool searchChosen = false; // left with "Search"

protected:
    void load() override;

private:
    void chooseSearch();

    std::unique_ptr<Ui::frmCustomSearchProp> ui;
};
