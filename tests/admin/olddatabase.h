#pragma once

#include <QString>
#include <QStringList>

// Database files as the older releases left them, for the upgrade tests.
namespace olddatabase {

// Every version the upgrade chain starts from, oldest first ("" is the
// oldest file, from before versions were written down).
const QStringList &versions();

// Makes a file at `path` as release `version` left it, with rows in it: a
// company, two customers, receipts with payment types 0 to 4 and 7, a line,
// and values in the columns the later releases added.
void create(const QString &path, const QString &version);

} // namespace olddatabase
