#include "output/mailer.h"

#include "output/mailcomposer.h"
#include "output/smtpoptions.h"
#include "output/smtptransfer.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QThread>
#include <QUrl>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

// The port of SMTP over TLS from the first byte; any other port starts in
// clear and, with TLS asked for, must switch to it (STARTTLS).
constexpr int kImplicitTlsPort = 465;

struct Mailer {
    Q_DECLARE_TR_FUNCTIONS(Mailer)
};

QByteArray serverUrl(const MailSettings &settings) {
    QUrl url;
    const bool implicitTls = settings.useTLS && settings.mailPort == kImplicitTlsPort;
    url.setScheme(implicitTls ? u"smtps"_s : u"smtp"_s);
    url.setHost(settings.mailServer.trimmed());
    if (settings.mailPort > 0)
        url.setPort(settings.mailPort);
    return url.toEncoded();
}

// An envelope address; a line break in it would end the SMTP command early.
QByteArray angled(const QString &address) {
    QString plain = address.trimmed();
    plain.remove(u'\r').remove(u'\n');
    return '<' + plain.toUtf8() + '>';
}

SmtpEnvelope envelopeFor(const MailMessage &message, const MailSettings &settings,
                         const SmtpOptions &options) {
    SmtpEnvelope envelope;
    envelope.url = serverUrl(settings);
    envelope.from = angled(settings.mailFrom);
    envelope.to = angled(message.to);
    envelope.username = settings.mailUsername.toUtf8();
    envelope.password = settings.mailPassword.toUtf8();
    envelope.caBundle = options.caBundle.toUtf8();
    envelope.requireTls = settings.useTLS;
    envelope.connectSeconds = long(options.connectTimeout.count());
    envelope.transferSeconds = long(options.transferTimeout.count());
    envelope.mail = composeMail(message, settings.mailFrom, QDateTime::currentDateTime());
    return envelope;
}

// Runs the transfer on a worker while the window keeps repainting; what the
// user types meanwhile waits, so no second command starts halfway through.
SmtpOutcome transferWhileRepainting(const SmtpEnvelope &envelope) {
    if (!QCoreApplication::instance())
        return transferMail(envelope);
    SmtpOutcome outcome;
    const std::unique_ptr<QThread> worker(
        QThread::create([&outcome, &envelope] { outcome = transferMail(envelope); }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker->wait();
    return outcome;
}

[[noreturn]] void raiseFailure(const SmtpOutcome &outcome) {
    if (outcome.refused())
        throw BriskoError(outcome.curlCode,
                          Mailer::tr("The mail server refused the message: %1 (%2)")
                              .arg(outcome.serverReply, outcome.curlWords));
    throw BriskoError(outcome.curlCode,
                      Mailer::tr("The e-mail could not be sent: %1").arg(outcome.curlWords));
}

} // namespace

void sendMail(const MailMessage &message, const MailSettings &settings) {
    sendMail(message, settings, SmtpOptions());
}

void sendMail(const MailMessage &message, const MailSettings &settings,
              const SmtpOptions &options) {
    if (settings.mailServer.trimmed().isEmpty())
        throw BriskoError(MailError::NotSetUp, Mailer::tr("No outgoing mail server is set up."));
    if (message.to.trimmed().isEmpty())
        throw BriskoError(MailError::NoRecipient,
                          Mailer::tr("There is no address to send the e-mail to."));
    const SmtpOutcome outcome = transferWhileRepainting(envelopeFor(message, settings, options));
    if (outcome.curlCode != 0)
        raiseFailure(outcome);
}
