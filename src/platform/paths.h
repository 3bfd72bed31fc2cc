#pragma once

#include <QString>

// Where Brisko keeps things. Read-only resources (report templates, the
// manual) sit beside the executable or in the installation's share folder;
// what Brisko writes (the database, the logo, backups) lives in the user's
// data location.
namespace Paths {

// The user's data folder: data/bdesk.db, companyLogo.jpg and backups/ live here.
QString dataFolder();
QString defaultDatabasePath();
QString logoPath();
QString backupsFolder();

// The folder that holds reports/ and the manual.
QString resourceFolder();

// Moves the data folder; the test fixture gives every test its own.
// An empty path goes back to the user's data location.
void useDataFolder(const QString &folder);

} // namespace Paths
