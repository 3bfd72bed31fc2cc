#include "platform/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

QString &overrideFolder() {
    static QString folder;
    return folder;
}

} // namespace

namespace Paths {

QString dataFolder() {
    if (!overrideFolder().isEmpty())
        return overrideFolder();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString defaultDatabasePath() {
    return dataFolder() + u"/data/bdesk.db"_s;
}

QString logoPath() {
    return dataFolder() + u"/companyLogo.jpg"_s;
}

QString backupsFolder() {
    return dataFolder() + u"/backups"_s;
}

QString resourceFolder() {
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(beside + u"/reports"_s))
        return beside;
    return QDir::cleanPath(beside + u"/../share/brisko"_s);
}

void useDataFolder(const QString &folder) {
    overrideFolder() = folder;
}

} // namespace Paths
