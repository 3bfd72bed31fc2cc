#include "catalogue/service.h"

#include "platform/briskoerror.h"

using namespace Qt::Literals::StringLiterals;

db::Snapshot Service::GetServices() {
    return reraiseWithPrefix(u"Service.GetServices:  "_s, [] {
        return db::select(u"SELECT * FROM tblService ORDER BY shortName"_s);
    });
}

bool Service::GetService(qint32 serviceID) {
    return reraiseWithPrefix(u"Service.GetService:  "_s, [&] {
        const std::optional<db::Row> row =
            db::readFirst(u"SELECT * FROM tblService WHERE serviceID = ?"_s, {serviceID});
        if (!row)
            return false;
        this->serviceID = row->int32(u"serviceID"_s);
        shortName = row->text(u"shortName"_s);
        longDesc = row->text(u"longDesc"_s);
        defaultCost = row->currency(u"defaultCost"_s);
        return true;
    });
}

bool Service::WriteService() {
    return reraiseWithPrefix(u"Service.WriteService:  "_s, [this] {
        if (serviceID != 0) {
            db::execute(u"UPDATE tblService SET shortName = ?, longDesc = ?, defaultCost = ? "
                        "WHERE serviceID = ?"_s,
                        {shortName, longDesc, defaultCost, serviceID});
            return true;
        }
        serviceID = static_cast<qint32>(
            db::insertReturningKey(u"INSERT INTO tblService (shortName, longDesc, defaultCost) "
                                   "VALUES(?, ?, ?) RETURNING serviceID"_s,
                                   {shortName, longDesc, defaultCost}));
        return true;
    });
}

bool Service::DeleteService(qint32 serviceID) {
    return reraiseWithPrefix(u"Service.DeleteService:  "_s, [serviceID] {
        db::execute(u"DELETE FROM tblService WHERE serviceID = ?"_s, {serviceID});
        return true;
    });
}
