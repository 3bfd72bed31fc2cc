#pragma once

#include <QDate>
#include <QString>

// The daily safety copy: at the first start of each day the open database is
// copied online into backups/auto/ of the data folder, as <date>.db, and only
// the newest copies are kept. Nothing is said unless it fails.
namespace AutoBackup {

inline constexpr int kCopiesKept = 14;

QString folder();

// Makes today's copy unless there is one; a failure shows one box and the
// program goes on.
void runDaily(const QDate &today = QDate::currentDate());

} // namespace AutoBackup
