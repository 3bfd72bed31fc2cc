#pragma once

#include <QString>
#include <QVariant>

// The one door to Brisko's settings (organisation "TOLVERAN", application
// "Brisko"): the machine values and the mail settings. Nothing else in the
// program touches QSettings. Every write is synced at once, since the process
// may end straight after it.
namespace SettingsStore {

QVariant read(const QString &key);
void write(const QString &key, const QVariant &value);
void remove(const QString &key);

// Keeps the settings in this INI file instead of the user's own store; the
// test fixture gives every test a file of its own. An empty path goes back.
void useFile(const QString &iniPath);

} // namespace SettingsStore
