#pragma once

#include "output/mailer.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

// The text of one e-mail as it goes over the wire (RFC 5322 with MIME): the
// headers, then a multipart body of the plain text and each attachment in
// base64. Names and the subject outside ASCII are encoded words (RFC 2047).
QByteArray composeMail(const MailMessage &message, const QString &from, const QDateTime &date);

// `text` as a header may carry it: unchanged when it is plain ASCII,
// otherwise as UTF-8 encoded words, folded onto lines of their own.
QByteArray encodeHeaderText(const QString &text);
