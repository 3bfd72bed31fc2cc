#include "receipts/receiptnumberlock.h"

#include "app/session.h"
#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

namespace {

constexpr int kRetries = 3;
constexpr unsigned long kRetryPauseMs = 1000;
// The runtime's number for a file that cannot be made for another reason
// than that it exists.
constexpr int kPathFileAccessError = 75;

} // namespace

ReceiptNumberLock::ReceiptNumberLock() {
    if (!session().useSharedFile)
        return;
    m_path = lockFilePath();
    for (int tries = 0;; ++tries) {
        if (tryTake())
            return;
        if (tries == kRetries) {
            throw BriskoError(kGiveUpError,
                              QCoreApplication::translate(
                                  "Receipt", "Could not lock database to get next receipt "
                                             "number.  Giving up after three tries."));
        }
        QThread::msleep(kRetryPauseMs);
    }
}

void ReceiptNumberLock::release() {
    if (m_path.isEmpty())
        return;
    QFile::remove(m_path);
    m_path.clear();
}

QString ReceiptNumberLock::lockFilePath() {
    return session().shareFileLocation + QStringLiteral(".lck");
}

// One look. The exclusive create is atomic, so two machines never both get it.
bool ReceiptNumberLock::tryTake() const {
    QString failure;
    for (int attempt = 0; attempt < 2; ++attempt) {
        QFile file(m_path);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
        if (QFile::exists(m_path))
            return false;
        // Either the holder let go between the create and the test, and a second
        // create will tell, or the folder cannot take the file at all.
        failure = file.errorString();
    }
    throw BriskoError(kPathFileAccessError, failure);
}
