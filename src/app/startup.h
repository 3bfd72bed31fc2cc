#pragma once

#include <QString>

// The start-up is the one place in app/ that calls up into the other
// subsystems: it needs the receipt year and the database chooser before any
// screen exists. Nothing else in app/ includes a higher layer.
namespace modMain {

// Settles everything the program needs before any screen works: the share
// settings, the database file, the connection, the company record and the
// receipt year. False when the program is ending.
bool Initialise();

// Reads useSharedFile and shareFileLocation into the session; a share file
// that has gone missing falls back to the local database for this run.
void loadShareSettings();

} // namespace modMain
