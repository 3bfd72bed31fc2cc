#include "output/mailsettings.h"

#include "platform/keychain.h"
#include "platform/settingsstore.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kPasswordKey = SettingsKey::mailPassword;
// Set while the password lives in the keychain, so that a machine whose mail
// needs no password never wakes the keychain up.
const QString kInKeychainKey = SettingsKey::passwordInKeychain;
const QString kKeychainEntry = u"mailPassword"_s;

QString storedPassword() {
    if (SettingsStore::read(kInKeychainKey).toBool()) {
        if (const auto secret = keychain().read(kKeychainEntry))
            return *secret;
    }
    return SettingsStore::read(kPasswordKey).toString();
}

void storePassword(const QString &password) {
    const bool wasInKeychain = SettingsStore::read(kInKeychainKey).toBool();
    if (!password.isEmpty() && keychain().write(kKeychainEntry, password)) {
        SettingsStore::remove(kPasswordKey);
        SettingsStore::write(kInKeychainKey, true);
        return;
    }
    if (wasInKeychain) {
        keychain().remove(kKeychainEntry);
        SettingsStore::remove(kInKeychainKey);
    }
    if (password.isEmpty()) {
        SettingsStore::remove(kPasswordKey);
        return;
    }
    SettingsStore::restrictToOwner();
    SettingsStore::write(kPasswordKey, password);
}

} // namespace

MailSettings MailSettings::stored() {
    MailSettings settings;
    settings.mailServer = SettingsStore::read(SettingsKey::mailServer).toString();
    settings.mailFrom = SettingsStore::read(SettingsKey::mailFrom).toString();
    settings.mailUsername = SettingsStore::read(SettingsKey::mailUsername).toString();
    settings.mailPassword = storedPassword();
    settings.mailPort = static_cast<qint16>(SettingsStore::read(SettingsKey::mailPort).toInt());
    settings.useTLS = SettingsStore::read(SettingsKey::useTLS).toBool();
    return settings;
}

void MailSettings::store() const {
    SettingsStore::write(SettingsKey::mailServer, mailServer);
    SettingsStore::write(SettingsKey::mailFrom, mailFrom);
    SettingsStore::write(SettingsKey::mailUsername, mailUsername);
    storePassword(mailPassword);
    SettingsStore::write(SettingsKey::mailPort, mailPort);
    SettingsStore::write(SettingsKey::useTLS, useTLS);
}
