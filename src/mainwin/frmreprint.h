#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmReprint;
}

// Prints or shows the last receipt saved, or one picked by its number. It
// stays open for the next one until closed.
class frmReprint : public ModalScreen {
    Q_OBJECT

public:
    explicit frmReprint(QWidget *parent = nullptr);
    ~frmReprint() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void optionChosen();
    void printChosen();
    qint32 chosenReceiptID();

    std::unique_ptr<Ui::frmReprint> ui;
};
