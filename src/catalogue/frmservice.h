#pragma once

#include "catalogue/cataloguescreen.h"

#include <memory>

namespace Ui {
class frmService;
}

// "Manage Services": the prepared service descriptions a service receipt
// takes its text and price from. A click on a row shows it; Add and Edit
// open the details for typing.
class frmService : public CatalogueScreen {
    Q_OBJECT

public:
    explicit frmService(QWidget *parent = nullptr);
    ~frmService() override;

protected:
    void load() override;

private:
    void loadServices();
    void loadService(qint32 id);
    void addService();
    void editService();
    void cancelEdit();
    void saveService();
    void deleteService();

    void setDetailsEnabled(bool enabled);
    void clearDetails();
    void updateSaveButton();

    std::unique_ptr<Ui::frmService> ui;
    qint32 currentServiceID = 0; // the row on show, or 0
};
