#pragma once

#include <QString>
#include <functional>

// Copies of a database file that may be in use. Every copy goes through
// SQLite's online backup, so that it is a consistent picture of the file even
// while another copy of Brisko writes to it, and lands beside its target
// first: the target is only replaced, by a rename, once the copy is whole and
// has passed SQLite's integrity check. A failure leaves the target as it was.
namespace DatabaseCopy {

// Copies the database at `source` over `target`.
void copy(const QString &source, const QString &target);

// True when `path` is a sound SQLite file ("PRAGMA integrity_check" says ok).
bool isIntact(const QString &path);

// True when `path` is a sound SQLite file that holds Brisko's company table.
bool isBriskoDatabase(const QString &path);

// Called once the pages are copied and before the copy is checked and put in
// place; tests raise from it to break a copy half-way. Empty to remove.
void setInterruption(std::function<void()> hook);

} // namespace DatabaseCopy
