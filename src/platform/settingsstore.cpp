#include "platform/settingsstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

QString &overrideFile() {
    static QString path;
    return path;
}

std::unique_ptr<QSettings> open() {
    if (!overrideFile().isEmpty())
        return std::make_unique<QSettings>(overrideFile(), QSettings::IniFormat);
    return std::make_unique<QSettings>(u"TOLVERAN"_s, u"Brisko"_s);
}

} // namespace

namespace SettingsStore {

QVariant read(const QString &key) {
    return open()->value(key);
}

void write(const QString &key, const QVariant &value) {
    auto settings = open();
    settings->setValue(key, value);
    settings->sync();
}

void remove(const QString &key) {
    auto settings = open();
    settings->remove(key);
    settings->sync();
}

void restrictToOwner() {
    const auto settings = open();
#ifdef Q_OS_WIN
    // The registry keeps its own rights, per user.
    if (settings->format() == QSettings::NativeFormat)
        return;
#endif
    QFile file(settings->fileName());
    if (!file.exists()) {
        QDir().mkpath(QFileInfo(file).absolutePath());
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.close();
    }
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void useFile(const QString &iniPath) {
    overrideFile() = iniPath;
}

} // namespace SettingsStore
