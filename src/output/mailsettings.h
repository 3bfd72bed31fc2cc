#pragma once

#include <QString>

// The outgoing mail settings. They are kept with the program's settings, so
// that they survive a restart and every report sees the same ones. The
// password goes to the desktop's keychain where there is one; otherwise it
// stays in the settings file, which only its owner may then read.
class MailSettings {
public:
    QString mailServer;
    QString mailFrom;
    QString mailUsername;
    QString mailPassword;
    qint16 mailPort = 0; // 0 when the field was left empty
    bool useTLS = false;

    static MailSettings stored();
    void store() const;
};
