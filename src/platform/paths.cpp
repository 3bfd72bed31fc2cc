#include "platform/paths.h"

#include "shippedfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString &overrideDataFolder() {
    static QString folder;
    return folder;
}

QString &overrideResourceFolder() {
    static QString folder;
    return folder;
}

QStringList missingIn(const QString &folder) {
    QStringList missing;
    std::copy_if(
        kShippedFiles.cbegin(), kShippedFiles.cend(), std::back_inserter(missing),
        [&folder](const QString &file) { return !QFileInfo::exists(folder + u'/' + file); });
    return missing;
}

} // namespace

namespace Paths {

QString dataFolder() {
    if (!overrideDataFolder().isEmpty())
        return overrideDataFolder();
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

QStringList resourceCandidates() {
    const QString programFolder = QCoreApplication::applicationDirPath();
    return {programFolder, QDir::cleanPath(programFolder + u"/../share/brisko"_s)};
}

// With nothing missing anywhere, or as much missing everywhere, the share
// folder wins: it is where an installation keeps them.
QString resourceFolder() {
    if (!overrideResourceFolder().isEmpty())
        return overrideResourceFolder();
    const QStringList candidates = resourceCandidates();
    QString best = candidates.last();
    qsizetype fewestMissing = missingIn(best).size();
    for (const QString &folder : candidates) {
        const qsizetype missing = missingIn(folder).size();
        if (missing < fewestMissing) {
            best = folder;
            fewestMissing = missing;
        }
    }
    return best;
}

QStringList missingResources() {
    return missingIn(resourceFolder());
}

void useDataFolder(const QString &folder) {
    overrideDataFolder() = folder;
}

void useResourceFolder(const QString &folder) {
    overrideResourceFolder() = folder;
}

} // namespace Paths
