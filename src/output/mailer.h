#pragma once

#include "output/mailsettings.h"

#include <QByteArray>
#include <QList>
#include <QString>

// One e-mail with its attachments, sent through the server of the mail settings.
struct MailAttachment {
    QString fileName; // as the recipient sees it: "Receipt 24-00017.pdf"
    QString mimeType; // "application/pdf"
    QByteArray data;
};

struct MailMessage {
    QString to;      // the recipient's address
    QString toName;  // may be empty
    QString subject;
    QString body;    // plain text
    QList<MailAttachment> attachments;
};

// Sends `message` from settings.mailFrom through settings.mailServer. Throws
// BriskoError with the server's own words when it refuses or cannot be reached.
void sendMail(const MailMessage &message, const MailSettings &settings);
