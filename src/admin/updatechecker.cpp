#include "admin/updatechecker.h"

#include "platform/briskoerror.h"
#include "website.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <memory>

namespace {

// A version is a few characters; anything longer is not one.
constexpr qint64 kLongestAnswer = 256;

} // namespace

UpdateChecker::UpdateChecker(QUrl address, std::chrono::milliseconds timeLimit)
    : m_address(std::move(address))
    , m_timeLimit(timeLimit) {}

QUrl UpdateChecker::buildAddress() {
    return QUrl(QString::fromUtf8(kUpdateVersionAddress));
}

QString UpdateChecker::getLatestVersion() const {
    QNetworkAccessManager network;
    QNetworkRequest request(m_address);
    request.setTransferTimeout(int(m_timeLimit.count()));
    const std::unique_ptr<QNetworkReply> reply(network.get(request));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);

    if (reply->error() == QNetworkReply::OperationCanceledError)
        throw BriskoError(reply->error(), tr("The update service at %1 did not answer in time.")
                                              .arg(m_address.toDisplayString()));
    if (reply->error() != QNetworkReply::NoError)
        throw BriskoError(reply->error(),
                          tr("The update service at %1 could not be reached: %2. "
                             "Please check the connection to the internet.")
                              .arg(m_address.toDisplayString(), reply->errorString()));
    return QString::fromUtf8(reply->read(kLongestAnswer)).trimmed();
}
