#include "platform/encryption.h"

#include "platform/briskoerror.h"
#include "platform/trim.h"

#include <QCryptographicHash>
#include <QPasswordDigestor>

using namespace Qt::Literals::StringLiterals;

namespace Utility {

QString EncryptString(const QString &text, const QString &key) {
    return reraiseWithPrefix(u"Utility.EncryptString:  "_s, [&] {
        const QString trimmed = Trim(text);
        if (trimmed.isEmpty())
            return QString();
        constexpr int rounds = 100000;
        constexpr int keyLength = 32;
        const QByteArray derived = QPasswordDigestor::deriveKeyPbkdf2(
            QCryptographicHash::Sha256, trimmed.toUtf8(), key.toUtf8(), rounds, keyLength);
        return QString::fromLatin1(derived.toBase64());
    });
}

} // namespace Utility
