#pragma once

#include "app/modalscreen.h"

#include <memory>

namespace Ui {
class frmReports;
}

// The Report Manager: lists, by their names, the report templates that lie
// in the reports folder.
class frmReports : public ModalScreen {
    Q_OBJECT

public:
    explicit frmReports(QWidget *parent = nullptr);
    ~frmReports() override;

protected:
    void load() override;

private:
    void loadReports();

    std::unique_ptr<Ui::frmReports> ui;
};
