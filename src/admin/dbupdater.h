#pragma once

#include <QString>

// Takes a database file of any older release to the current schema. The
// file's version is learnt from its company row, and a chain of steps, each
// from one version to the next, runs from there. The whole chain is one
// transaction: a step that fails leaves the file exactly as it was.
namespace dbUpdater {

// True when the file's version sorts below the current one, compared as
// text. Learns the version into the session's dbVersionFound.
bool dbNeedsUpdate(const QString &connectionString);

// Brings the session's database file to the current version, after a copy
// to the same path + ".bak". Reports by message boxes only. False when the
// program is ending: the user declined to upgrade a shared file, or the
// upgrade failed.
bool updateDatabase();

} // namespace dbUpdater
