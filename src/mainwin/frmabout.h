#pragma once

#include "app/modalscreen.h"
#include <memory>

namespace Ui {
class frmAbout;
}

// The about box: the program's name and version.
class frmAbout : public ModalScreen {
    Q_OBJECT

public:
    explicit frmAbout(QWidget *parent = nullptr);
    ~frmAbout() override;

private:
    std::unique_ptr<Ui::frmAbout> ui;
};
