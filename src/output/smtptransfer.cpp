#include "output/smtptransfer.h"

#include <curl/curl.h>
#include <memory>
#include <mutex>

namespace {

// What libcurl's callbacks read from and write into during one transfer.
struct TransferState {
    explicit TransferState(const QByteArray &mail)
        : mail(mail) {}

    const QByteArray &mail;
    qsizetype sent = 0;
    char errorBuffer[CURL_ERROR_SIZE] = {};
    // The server's replies, as libcurl's debug stream shows them line by
    // line. The farewell after QUIT is left out: the reply before it is the
    // one that tells what failed.
    QByteArray lastReply;
    bool replyComplete = true;
    bool quitting = false;
};

size_t readMail(char *buffer, size_t size, size_t count, void *userData) {
    auto *state = static_cast<TransferState *>(userData);
    const qsizetype part = std::min(qsizetype(size * count), state->mail.size() - state->sent);
    std::copy_n(state->mail.constData() + state->sent, part, buffer);
    state->sent += part;
    return size_t(part);
}

void noteReplyLine(TransferState &state, const QByteArray &line) {
    if (state.replyComplete)
        state.lastReply.clear();
    else
        state.lastReply += ' ';
    state.lastReply += line;
    // "250-..." announces more lines of the same reply; "250 ..." ends it.
    state.replyComplete = line.size() < 4 || line.at(3) != '-';
}

int noteTraffic(CURL *, curl_infotype type, char *data, size_t size, void *userData) {
    auto *state = static_cast<TransferState *>(userData);
    const QByteArray line = QByteArray(data, qsizetype(size)).trimmed();
    if (type == CURLINFO_HEADER_OUT && line.startsWith("QUIT"))
        state->quitting = true;
    else if (type == CURLINFO_HEADER_IN && !state->quitting)
        noteReplyLine(*state, line);
    return 0;
}

void ensureCurlInitialised() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

void setEnvelope(CURL *curl, const SmtpEnvelope &envelope, curl_slist *recipients,
                 TransferState &state) {
    curl_easy_setopt(curl, CURLOPT_URL, envelope.url.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(curl, CURLOPT_MAIL_FROM, envelope.from.constData());
    curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, recipients);
    curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl, CURLOPT_READFUNCTION, &readMail);
    curl_easy_setopt(curl, CURLOPT_READDATA, &state);
    curl_easy_setopt(curl, CURLOPT_INFILESIZE_LARGE, curl_off_t(envelope.mail.size()));
}

void setSecurity(CURL *curl, const SmtpEnvelope &envelope) {
    // Never fall back to sending in clear when encryption was asked for.
    if (envelope.requireTls)
        curl_easy_setopt(curl, CURLOPT_USE_SSL, long(CURLUSESSL_ALL));
    if (!envelope.caBundle.isEmpty())
        curl_easy_setopt(curl, CURLOPT_CAINFO, envelope.caBundle.constData());
    if (!envelope.username.isEmpty()) {
        curl_easy_setopt(curl, CURLOPT_USERNAME, envelope.username.constData());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, envelope.password.constData());
    }
}

void setLimitsAndReporting(CURL *curl, const SmtpEnvelope &envelope, TransferState &state) {
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, envelope.connectSeconds);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT, envelope.transferSeconds);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, state.errorBuffer);
    // The debug stream is the one place libcurl shows the server's replies.
    curl_easy_setopt(curl, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(curl, CURLOPT_DEBUGFUNCTION, &noteTraffic);
    curl_easy_setopt(curl, CURLOPT_DEBUGDATA, &state);
}

} // namespace

SmtpOutcome transferMail(const SmtpEnvelope &envelope) {
    ensureCurlInitialised();
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(),
                                                                   &curl_easy_cleanup);
    if (!curl)
        return {CURLE_FAILED_INIT, QString::fromUtf8(curl_easy_strerror(CURLE_FAILED_INIT)), {}};
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> recipients(
        curl_slist_append(nullptr, envelope.to.constData()), &curl_slist_free_all);
    TransferState state(envelope.mail);
    setEnvelope(curl.get(), envelope, recipients.get(), state);
    setSecurity(curl.get(), envelope);
    setLimitsAndReporting(curl.get(), envelope, state);

    const CURLcode code = curl_easy_perform(curl.get());
    QString curlWords = QString::fromUtf8(state.errorBuffer).trimmed();
    if (curlWords.isEmpty() && code != CURLE_OK)
        curlWords = QString::fromUtf8(curl_easy_strerror(code));
    return {code, curlWords, QString::fromUtf8(state.lastReply)};
}
