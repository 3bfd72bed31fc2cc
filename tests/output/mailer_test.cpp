#include "output/mailer.h"
#include "output/smtpoptions.h"
#include "support/briskotest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <curl/curl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray kPdf = "%PDF-1.4\n%%EOF\n"_ba;

// Each test has its own SMTP server on 127.0.0.1 (smtpsink.py), stopped with it.
class MailerTest : public BriskoTest {
protected:
    void startServer(const QStringList &options = {}) {
        server.start(QStringLiteral(TEST_PYTHON),
                     QStringList{QStringLiteral(SMTP_SINK_SCRIPT), tempPath(u"mail.jsonl"_s)} +
                         options);
        ASSERT_TRUE(server.waitForReadyRead(10000)) << "the test's SMTP server did not start";
        settings.mailServer = u"127.0.0.1"_s;
        settings.mailFrom = u"shop@example.org"_s;
        settings.mailPort = qint16(server.readLine().trimmed().toInt());
    }
    void TearDown() override {
        server.closeWriteChannel();
        if (!server.waitForFinished(5000))
            server.kill();
        BriskoTest::TearDown();
    }
    // A summary of each message the server took, in order.
    QList<QJsonObject> received() const {
        QFile file(tempPath(u"mail.jsonl"_s));
        QList<QJsonObject> messages;
        if (!file.open(QIODevice::ReadOnly))
            return messages;
        for (const QByteArray &line : file.readAll().split('\n'))
            if (!line.isEmpty())
                messages.append(QJsonDocument::fromJson(line).object());
        return messages;
    }

    static MailMessage receiptMail(const QString &to = u"jo@example.net"_s) {
        return {to,
                u"Jo Åberg"_s,
                u"Your receipt from Café Ünal"_s,
                u"Your receipt, 24-00017, is attached\r\n\r\nCafé Ünal"_s,
                {{u"Receipt 24-00017.pdf"_s, u"application/pdf"_s, kPdf}}};
    }

    QProcess server;
    MailSettings settings;
};

TEST_F(MailerTest, SendsOverStartTlsAndLogsIn) {
    const QString certificate = tempPath(u"cert.pem"_s), key = tempPath(u"key.pem"_s);
    QProcess openssl; // a throwaway certificate for 127.0.0.1
    openssl.start(QStringLiteral(TEST_OPENSSL),
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                   u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"1"_s, u"-subj"_s,
                   u"/CN=127.0.0.1"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s,
                   key, u"-out"_s, certificate});
    ASSERT_TRUE(openssl.waitForFinished(20000));
    startServer({u"--starttls"_s, certificate, key, u"--auth"_s, u"till:s3cret"_s});
    settings.useTLS = true;
    settings.mailUsername = u"till"_s;
    settings.mailPassword = u"s3cret"_s;
    SmtpOptions trustingTheTestCertificate;
    trustingTheTestCertificate.caBundle = certificate;
    sendMail(receiptMail(), settings, trustingTheTestCertificate);

    const QList<QJsonObject> messages = received();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first()[u"overTls"_s].toBool());
    EXPECT_TRUE(messages.first()[u"authenticated"_s].toBool());
}

// The server keeps what it took; its refusals come back in its own words.
TEST_F(MailerTest, DeliversTheReceiptWithItsAttachmentOrTheServersRefusal) {
    startServer();
    sendMail(receiptMail(), settings);

    const QList<QJsonObject> messages = received();
    ASSERT_EQ(messages.size(), 1);
    const QJsonObject &mail = messages.first();
    EXPECT_EQ(mail[u"recipients"_s].toArray(), QJsonArray{u"jo@example.net"_s});
    const QStringList headers = {mail[u"mailFrom"_s].toString(), mail[u"from"_s].toString(),
                                 mail[u"to"_s].toString(), mail[u"subject"_s].toString()};
    EXPECT_EQ(headers,
              (QStringList{u"shop@example.org"_s, u"shop@example.org"_s,
                           u"Jo Åberg <jo@example.net>"_s, u"Your receipt from Café Ünal"_s}));
    EXPECT_EQ(mail[u"body"_s].toString(), u"Your receipt, 24-00017, is attached\n\nCafé Ünal"_s);
    EXPECT_TRUE(mail[u"messageId"_s].toString().endsWith(u"@example.org>"_s));
    EXPECT_FALSE(mail[u"date"_s].toString().isEmpty());
    EXPECT_EQ(mail[u"defects"_s].toInt(), 0);
    const QJsonObject attachment = mail[u"attachments"_s].toArray().first().toObject();
    EXPECT_EQ(attachment[u"fileName"_s].toString(), u"Receipt 24-00017.pdf"_s);
    EXPECT_EQ(attachment[u"mimeType"_s].toString(), u"application/pdf"_s);
    EXPECT_EQ(QByteArray::fromBase64(attachment[u"data"_s].toString().toLatin1()), kPdf);

    EXPECT_TRUE(errorOf([&] { sendMail(receiptMail(u"nobody@example.net"_s), settings); })
                    .description()
                    .startsWith(u"The mail server refused the message: 550 5.1.1 No customer "
                                "of that name here"_s));

    // Encryption asked for and not offered: nothing goes out in clear.
    settings.useTLS = true;
    EXPECT_EQ(errorOf([&] { sendMail(receiptMail(), settings); }).number(), CURLE_USE_SSL_FAILED);
    EXPECT_EQ(received().size(), 1);

    EXPECT_EQ(errorOf([&] { sendMail(receiptMail(u" "_s), settings); }).description(),
              u"There is no address to send the e-mail to."_s);
    settings.mailServer.clear();
    EXPECT_EQ(errorOf([&] { sendMail(receiptMail(), settings); }).description(),
              u"No outgoing mail server is set up."_s);
}

} // namespace
