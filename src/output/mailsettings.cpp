#include "output/mailsettings.h"

#include "platform/settingsstore.h"

using namespace Qt::Literals::StringLiterals;

MailSettings MailSettings::stored() {
    MailSettings settings;
    settings.mailServer = SettingsStore::read(u"Mail/mailServer"_s).toString();
    settings.mailFrom = SettingsStore::read(u"Mail/mailFrom"_s).toString();
    settings.mailUsername = SettingsStore::read(u"Mail/mailUsername"_s).toString();
    settings.mailPassword = SettingsStore::read(u"Mail/mailPassword"_s).toString();
    settings.mailPort = static_cast<qint16>(SettingsStore::read(u"Mail/mailPort"_s).toInt());
    settings.useTLS = SettingsStore::read(u"Mail/useTLS"_s).toBool();
    return settings;
}

void MailSettings::store() const {
    SettingsStore::write(u"Mail/mailServer"_s, mailServer);
    SettingsStore::write(u"Mail/mailFrom"_s, mailFrom);
    SettingsStore::write(u"Mail/mailUsername"_s, mailUsername);
    SettingsStore::write(u"Mail/mailPassword"_s, mailPassword);
    SettingsStore::write(u"Mail/mailPort"_s, mailPort);
    SettingsStore::write(u"Mail/useTLS"_s, useTLS);
}
