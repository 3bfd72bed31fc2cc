#pragma once

#include <QString>

namespace modMain {

// Settles everything the program needs before any screen works: the share
// settings, the database file, the connection, the company record and the
// receipt year. False when the program is ending.
bool Initialise();

// Reads useSharedFile and shareFileLocation into the session; a share file
// that has gone missing falls back to the local database for this run.
void loadShareSettings();

// Ends the program at once, from anywhere, without questions.
void EndProgram();

} // namespace modMain
