#include "admin/databasefiles.h"

#include "app/session.h"
#include "platform/dialogs.h"

#include <QCoreApplication>

namespace modMain {

QString openDatabaseDialog() {
    Dialogs::FileRequest request;
    request.title = QCoreApplication::translate("openDatabaseDialog", "Open Database");
    request.folder = session().dbPath;
    request.filter = QCoreApplication::translate("openDatabaseDialog", "Database Files (*.db)");
    return dialogs().openFile(request);
}

} // namespace modMain
