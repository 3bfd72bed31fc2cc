#include "platform/keychain.h"

#include <QEventLoop>
#include <qt6keychain/keychain.h>

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<Keychain> &current() {
    static std::unique_ptr<Keychain> instance = std::make_unique<DesktopKeychain>();
    return instance;
}

const QString kService = u"Brisko"_s;

// QtKeychain works asynchronously; the callers want an answer. The window
// keeps repainting while the keychain asks the user to unlock it.
void runToTheEnd(QKeychain::Job &job, const QString &key) {
    job.setAutoDelete(false);
    job.setKey(key);
    bool finished = false;
    QEventLoop loop;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, [&] {
        finished = true;
        loop.quit();
    });
    job.start();
    if (!finished)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

Keychain &keychain() {
    return *current();
}

std::unique_ptr<Keychain> installKeychain(std::unique_ptr<Keychain> replacement) {
    std::swap(current(), replacement);
    return replacement;
}

std::optional<QString> DesktopKeychain::read(const QString &key) {
    QKeychain::ReadPasswordJob job(kService);
    runToTheEnd(job, key);
    if (job.error() != QKeychain::NoError)
        return std::nullopt;
    return job.textData();
}

bool DesktopKeychain::write(const QString &key, const QString &secret) {
    QKeychain::WritePasswordJob job(kService);
    job.setTextData(secret);
    runToTheEnd(job, key);
    return job.error() == QKeychain::NoError;
}

void DesktopKeychain::remove(const QString &key) {
    QKeychain::DeletePasswordJob job(kService);
    runToTheEnd(job, key);
}
