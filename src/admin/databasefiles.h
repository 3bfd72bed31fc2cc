#pragma once

#include <QString>

namespace modMain {

// Asks for a database file to open; its path, or the empty text on Cancel.
// Nothing about the file is tested here.
QString openDatabaseDialog();

} // namespace modMain
