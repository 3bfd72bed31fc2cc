#pragma once

#include <QString>

namespace modMain {

// Asks for a database file to open; its path, or the empty text on Cancel.
// Nothing about the file is tested here.
QString openDatabaseDialog();

// Copies the open database to a file the user names, as an online copy that
// is checked before it is reported done.
void backupDatabase();

// Replaces the default database file with a backup the user chooses. The
// backup is copied beside the default file and then renamed over it, so that
// a failure half-way leaves the old file. Sets the session's restoreCompleted
// when the file was replaced and the program must end.
void restoreDatabase();

} // namespace modMain
