#pragma once

#include <QByteArray>
#include <QString>

// One SMTP transfer through libcurl, blocking. Everything it needs is copied
// in, so that it may run on a worker thread.
struct SmtpEnvelope {
    QByteArray url;  // smtp://host:port or smtps://host:port
    QByteArray from; // <address>
    QByteArray to;   // <address>
    QByteArray username;
    QByteArray password;
    QByteArray caBundle;
    bool requireTls = false;
    long connectSeconds = 0;
    long transferSeconds = 0;
    QByteArray mail; // the whole message, headers and body
};

struct SmtpOutcome {
    int curlCode = 0;    // CURLE_OK when the server took the message
    QString curlWords;   // libcurl's own description of the failure
    QString serverReply; // the server's last reply before it was left, every line of it

    // The server said no (4xx or 5xx), as against a failure on the way.
    bool refused() const { return serverReply.startsWith(u'4') || serverReply.startsWith(u'5'); }
};

SmtpOutcome transferMail(const SmtpEnvelope &envelope);
