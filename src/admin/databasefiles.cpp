#include "admin/databasefiles.h"

#include "admin/databasecopy.h"
#include "app/database.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace modMain {
namespace {

// A folder of the data location, or the chooser's own default when it is missing.
QString existingFolder(const QString &name) {
    const QString folder = Paths::dataFolder() + u'/' + name;
    return QFileInfo(folder).isDir() ? folder : QString();
}

// The backup file the user names; empty when the routine ends.
QString chooseBackupTarget(const QString &source) {
    Dialogs::FileRequest request;
    request.title = QCoreApplication::translate("backupDatabase", "Backup Filename");
    request.folder = existingFolder(u"backups"_s);
    request.filter = QCoreApplication::translate("backupDatabase", "Brisko Backup Files (*.db)");
    for (;;) {
        const QString chosen = dialogs().saveFile(request);
        if (chosen.isEmpty())
            return {};
        if (chosen == source) {
            dialogs().message(QCoreApplication::translate(
                                  "backupDatabase", "You can not use the name bdesk.db.  Please "
                                                    "enter a different name for your backup file."),
                              QCoreApplication::translate("backupDatabase", "Error"),
                              Dialogs::Icon::Critical);
            continue;
        }
        if (!QFileInfo::exists(chosen))
            return chosen;
        // The old file is replaced only once the new copy is whole.
        const auto answer = dialogs().message(
            QCoreApplication::translate("backupDatabase",
                                        "%1 already exists.  Do you wish to overwrite this file?")
                .arg(chosen),
            QCoreApplication::translate("backupDatabase", "Existing Backup File"),
            Dialogs::Icon::None, Dialogs::Buttons::YesNoCancel);
        if (answer == Dialogs::Answer::Yes)
            return chosen;
        if (answer == Dialogs::Answer::Cancel)
            return {};
    }
}

// The backup to restore from; empty when the routine ends.
QString chooseRestoreSource(const QString &target) {
    static QString lastChosen; // the chooser offers the name used last time
    Dialogs::FileRequest request;
    request.title = QCoreApplication::translate("restoreDatabase", "Restore Database");
    request.folder = existingFolder(u"backup"_s);
    request.filter =
        QCoreApplication::translate("restoreDatabase", "Brisko Backup Files (*.db);;All Files (*)");
    for (;;) {
        request.fileName = lastChosen;
        const QString chosen = dialogs().openFile(request);
        if (chosen.isEmpty())
            return {};
        lastChosen = QFileInfo(chosen).fileName();
        if (chosen == target) {
            dialogs().message(
                QCoreApplication::translate(
                    "restoreDatabase", "You can not restore bdesk.db as it is the current database "
                                       "file.  Please choose a backup file."),
                QCoreApplication::translate("restoreDatabase", "Error"), Dialogs::Icon::Critical);
            continue;
        }
        if (DatabaseCopy::isBriskoDatabase(chosen))
            return chosen;
        dialogs().message(QCoreApplication::translate(
                              "restoreDatabase", "%1 is not a Brisko database, or it is damaged.  "
                                                 "Please choose a backup file.")
                              .arg(chosen),
                          QCoreApplication::translate("restoreDatabase", "Error"),
                          Dialogs::Icon::Critical);
    }
}

bool confirmRestore() {
    const auto answer = dialogs().message(
        QCoreApplication::translate(
            "restoreDatabase", "Warning!  You are about to replace the contents of your current "
                               "database.  This action CAN NOT BE REVERSED.") +
            u'\n' +
            QCoreApplication::translate("restoreDatabase", "Are you sure you wish to continue?"),
        QCoreApplication::translate("restoreDatabase", "Restore Database"), Dialogs::Icon::None,
        Dialogs::Buttons::YesNoCancel);
    return answer == Dialogs::Answer::Yes;
}

QString errorText(const BriskoError &error) {
    return QString::number(error.number()) + u' ' + error.description();
}

} // namespace

QString openDatabaseDialog() {
    Dialogs::FileRequest request;
    request.title = QCoreApplication::translate("openDatabaseDialog", "Open Database");
    request.folder = session().dbPath;
    request.filter = QCoreApplication::translate("openDatabaseDialog", "Database Files (*.db)");
    return dialogs().openFile(request);
}

void backupDatabase() {
    const QString source = session().dbPath;
    try {
        const QString target = chooseBackupTarget(source);
        if (target.isEmpty())
            return;
        db::closeConnection();
        DatabaseCopy::copy(source, target);
    } catch (const BriskoError &error) {
        dialogs().message(QCoreApplication::translate("backupDatabase",
                                                      "Error occured during the database backup.  "
                                                      "Error: ") +
                              errorText(error),
                          QCoreApplication::translate("backupDatabase", "Error"),
                          Dialogs::Icon::Critical);
        return;
    }
    dialogs().message(QCoreApplication::translate("backupDatabase", "Backup operation completed."),
                      QCoreApplication::translate("backupDatabase", "Complete"),
                      Dialogs::Icon::Information);
}

void restoreDatabase() {
    // Always the default file, whichever database is open.
    const QString target = Paths::defaultDatabasePath();
    try {
        const QString source = chooseRestoreSource(target);
        if (source.isEmpty())
            return;
        if (!confirmRestore()) {
            session().restoreCompleted = false;
            dialogs().message(
                QCoreApplication::translate("restoreDatabase", "Restore operation was canceled."),
                QCoreApplication::translate("restoreDatabase", "Restored Canceled"),
                Dialogs::Icon::Information);
            return;
        }
        db::closeConnection();
        QDir().mkpath(QFileInfo(target).absolutePath());
        DatabaseCopy::copy(source, target);
    } catch (const BriskoError &error) {
        dialogs().message(
            QCoreApplication::translate("restoreDatabase", "Could not restore database.  Error: ") +
                errorText(error),
            QCoreApplication::translate("restoreDatabase", "Error"), Dialogs::Icon::Critical);
        return;
    }
    session().restoreCompleted = true;
    dialogs().message(QCoreApplication::translate(
                          "restoreDatabase", "Restore operation completed.  Brisko must now be "
                                             "restarted."),
                      QCoreApplication::translate("restoreDatabase", "Restore Complete"),
                      Dialogs::Icon::Information);
}

} // namespace modMain
