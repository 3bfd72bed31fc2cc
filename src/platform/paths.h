#pragma once

#include <QString>
#include <QStringList>

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

// The places Brisko's read-only files may be, in the order they are tried:
// beside the executable, where a build puts them, and the installation's
// share folder (../share/brisko from the executable). Nowhere else.
QStringList resourceCandidates();
// The folder that holds reports/ and the manual: the candidate that holds
// the most of the files Brisko ships.
QString resourceFolder();
// The shipped files, relative to resourceFolder(), that it lacks.
QStringList missingResources();

// Moves the data folder; the test fixture gives every test its own.
// An empty path goes back to the user's data location.
void useDataFolder(const QString &folder);
// Puts the read-only files elsewhere, for tests of what reads them. An empty
// path goes back to the candidates.
void useResourceFolder(const QString &folder);

} // namespace Paths
