#pragma once

#include <QString>

namespace Utility {

// A one-way, repeatable transformation of a password: PBKDF2-HMAC-SHA256 with
// the key as salt and 100,000 rounds, in base64. The text is trimmed first,
// and a text of blanks only gives the empty text.
QString EncryptString(const QString &text, const QString &key);

// The key every user password is encrypted with.
inline constexpr char16_t kPasswordKey[] = u"fernwoodTally(";

} // namespace Utility
