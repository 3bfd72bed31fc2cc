#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmAbout;
}

// The about box: the program's name and version.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget *parent = nullptr);
    ~frmAbout() override;

private:
    std::unique_ptr<Ui::frmAbout> ui;
};
