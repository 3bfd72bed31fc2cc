#pragma once

#include "app/currency.h"
#include "app/database.h"

#include <QString>

// One prepared service description of tblService: the short name the lists
// show, the text a service receipt carries and its usual price.
class Service {
public:
    qint32 serviceID = 0; // 0 until first written
    QString shortName;
    QString longDesc;
    Currency defaultCost;

    // Every service description, by short name.
    db::Snapshot GetServices();
    // Fills the fields; false when there is no such row.
    bool GetService(qint32 serviceID);
    // Inserts when serviceID is 0 and learns the new key, else updates.
    bool WriteService();
    // Receipts that name the service keep its key; nothing guards them.
    bool DeleteService(qint32 serviceID);
};
