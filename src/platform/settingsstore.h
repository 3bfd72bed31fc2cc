#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QVariant>

// The names Brisko's settings are kept under. Every reader and writer uses
// these, so that a misspelt name cannot quietly read an empty value.
namespace SettingsKey {

// The four machine values (Utility::RegGetString and RegSetString).
inline constexpr QLatin1StringView useSharedFile{"useSharedFile"};
inline constexpr QLatin1StringView shareFileLocation{"shareFileLocation"};
inline constexpr QLatin1StringView lastDB{"lastDB"};
inline constexpr QLatin1StringView firstRun{"firstRun"};

// The outgoing mail settings.
inline constexpr QLatin1StringView mailServer{"Mail/mailServer"};
inline constexpr QLatin1StringView mailFrom{"Mail/mailFrom"};
inline constexpr QLatin1StringView mailUsername{"Mail/mailUsername"};
inline constexpr QLatin1StringView mailPassword{"Mail/mailPassword"};
inline constexpr QLatin1StringView mailPort{"Mail/mailPort"};
inline constexpr QLatin1StringView useTLS{"Mail/useTLS"};
// Set when the mail password was put in the desktop's keychain.
inline constexpr QLatin1StringView passwordInKeychain{"Mail/passwordInKeychain"};

} // namespace SettingsKey

// The one door to Brisko's settings (organisation "TOLVERAN", application
// "Brisko"): the machine values and the mail settings. Nothing else in the
// program touches QSettings. Every write is synced at once, since the process
// may end straight after it.
namespace SettingsStore {

QVariant read(const QString &key);
void write(const QString &key, const QVariant &value);
void remove(const QString &key);

// Lets only the user read and write the settings file, creating it if need
// be, so that a secret written next stays private. Later writes keep it so.
void restrictToOwner();

// Keeps the settings in this INI file instead of the user's own store; the
// test fixture gives every test a file of its own. An empty path goes back.
void useFile(const QString &iniPath);

} // namespace SettingsStore
