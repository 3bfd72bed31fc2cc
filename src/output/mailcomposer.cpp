#include "output/mailcomposer.h"

#include <QUuid>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype kBase64LineLength = 76;
// An encoded word may be 75 characters long; "=?UTF-8?B?" and "?=" take 12,
// which leaves 63 characters of base64, that is 45 bytes.
constexpr qsizetype kEncodedWordBytes = 45;

bool isPlainAscii(const QString &text) {
    for (const QChar character : text) {
        if (character.unicode() < 0x20 || character.unicode() > 0x7e)
            return false;
    }
    return true;
}

// A header never gets a line break from what a user typed.
QString oneLine(const QString &text) {
    QString line = text;
    for (QChar &character : line) {
        if (character.unicode() < 0x20 || character.unicode() == 0x7f)
            character = u' ';
    }
    return line.trimmed();
}

QByteArray quoted(const QString &text) {
    QByteArray escaped = text.toLatin1();
    escaped.replace("\\", "\\\\").replace("\"", "\\\"");
    return '"' + escaped + '"';
}

QByteArray wrappedBase64(const QByteArray &data) {
    const QByteArray encoded = data.toBase64();
    QByteArray lines;
    for (qsizetype start = 0; start < encoded.size(); start += kBase64LineLength)
        lines += encoded.mid(start, kBase64LineLength) + "\r\n";
    return lines;
}

// The address alone, or the name and the address; a name outside ASCII is
// encoded, any other is quoted.
QByteArray mailbox(const QString &name, const QString &address) {
    const QString plainName = oneLine(name);
    const QByteArray angle = '<' + oneLine(address).toUtf8() + '>';
    if (plainName.isEmpty())
        return angle;
    const bool encode = !isPlainAscii(plainName) || plainName.contains(u"=?"_s);
    return (encode ? encodeHeaderText(plainName) : quoted(plainName)) + ' ' + angle;
}

// A file name as both old and new mail readers expect it: outside ASCII, an
// encoded word in the type's name= and the RFC 2231 form in filename*=.
QByteArray typeNameParameter(const QString &name) {
    if (isPlainAscii(name))
        return "; name=" + quoted(name);
    return "; name=\"" + encodeHeaderText(name).replace("\r\n ", " ") + '"';
}

QByteArray attachmentDisposition(const QString &name) {
    if (isPlainAscii(name))
        return "attachment; filename=" + quoted(name);
    return "attachment; filename*=UTF-8''" + name.toUtf8().toPercentEncoding();
}

QByteArray messageId(const QString &from) {
    const QString domain = from.section(u'@', -1).trimmed();
    const QString host = from.contains(u'@') && !domain.isEmpty() ? domain : u"localhost"_s;
    return '<' + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' +
           oneLine(host).toUtf8() + '>';
}

QByteArray header(const char *name, const QByteArray &value) {
    return QByteArray(name) + ": " + value + "\r\n";
}

QByteArray textPart(const QString &body) {
    QString crlf = body;
    crlf.replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"\r\n"_s);
    return header("Content-Type", "text/plain; charset=UTF-8") +
           header("Content-Transfer-Encoding", "base64") + "\r\n" + wrappedBase64(crlf.toUtf8());
}

QByteArray attachmentPart(const MailAttachment &attachment) {
    const QString name = oneLine(attachment.fileName);
    const QString type = oneLine(attachment.mimeType);
    const QByteArray mimeType =
        type.isEmpty() ? QByteArray("application/octet-stream") : type.toLatin1();
    return header("Content-Type", mimeType + typeNameParameter(name)) +
           header("Content-Disposition", attachmentDisposition(name)) +
           header("Content-Transfer-Encoding", "base64") + "\r\n" + wrappedBase64(attachment.data);
}

} // namespace

QByteArray encodeHeaderText(const QString &text) {
    const QString line = oneLine(text);
    if (isPlainAscii(line) && !line.contains(u"=?"_s))
        return line.toLatin1();
    // Words are cut between characters, never inside one.
    QList<QByteArray> words;
    QByteArray chunk;
    for (qsizetype at = 0; at < line.size();) {
        const qsizetype length = line.at(at).isHighSurrogate() && at + 1 < line.size() ? 2 : 1;
        const QByteArray character = line.mid(at, length).toUtf8();
        if (chunk.size() + character.size() > kEncodedWordBytes) {
            words.append(chunk);
            chunk.clear();
        }
        chunk += character;
        at += length;
    }
    if (!chunk.isEmpty())
        words.append(chunk);
    QByteArray encoded;
    for (const QByteArray &word : words) {
        if (!encoded.isEmpty())
            encoded += "\r\n ";
        encoded += "=?UTF-8?B?" + word.toBase64() + "?=";
    }
    return encoded;
}

QByteArray composeMail(const MailMessage &message, const QString &from, const QDateTime &date) {
    const QByteArray boundary = "=_brisko_" + QUuid::createUuid().toByteArray(QUuid::Id128);
    QByteArray mail =
        header("Date", date.toString(Qt::RFC2822Date).toLatin1()) +
        header("Message-ID", messageId(from)) + header("From", mailbox({}, from)) +
        header("To", mailbox(message.toName, message.to)) +
        header("Subject", encodeHeaderText(message.subject)) + header("MIME-Version", "1.0") +
        header("Content-Type", "multipart/mixed; boundary=\"" + boundary + '"') + "\r\n";
    mail += "--" + boundary + "\r\n" + textPart(message.body);
    for (const MailAttachment &attachment : message.attachments)
        mail += "--" + boundary + "\r\n" + attachmentPart(attachment);
    mail += "--" + boundary + "--\r\n";
    return mail;
}
