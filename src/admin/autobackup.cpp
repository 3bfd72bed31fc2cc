#include "admin/autobackup.h"

#include "admin/databasecopy.h"
#include "app/database.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace AutoBackup {
namespace {

// Named by date, so that the names sort as the days do.
QString fileName(const QDate &day) {
    return day.toString(u"yyyy-MM-dd"_s) + u".db"_s;
}

void pruneOldCopies() {
    const QDir backups(folder());
    const QStringList copies =
        backups.entryList({u"\?\?\?\?-\?\?-\?\?.db"_s}, QDir::Files, QDir::Name | QDir::Reversed);
    for (qsizetype index = kCopiesKept; index < copies.size(); ++index)
        QFile::remove(backups.filePath(copies.at(index)));
}

} // namespace

QString folder() {
    return Paths::backupsFolder() + u"/auto"_s;
}

void runDaily(const QDate &today) {
    const QString target = folder() + u'/' + fileName(today);
    if (QFile::exists(target))
        return;
    try {
        if (!QDir().mkpath(folder())) {
            throw BriskoError(RuntimeError::DatabaseError,
                              QCoreApplication::translate("AutoBackup", "%1 could not be made.")
                                  .arg(QDir::toNativeSeparators(folder())));
        }
        db::closeConnection();
        DatabaseCopy::copy(session().dbPath, target);
        pruneOldCopies();
    } catch (const BriskoError &error) {
        dialogs().message(QCoreApplication::translate(
                              "AutoBackup", "Today's automatic backup of the database could not be "
                                            "made:  %1")
                              .arg(error.description()),
                          QCoreApplication::translate("AutoBackup", "Automatic Backup"),
                          Dialogs::Icon::Exclamation);
    }
}

} // namespace AutoBackup
