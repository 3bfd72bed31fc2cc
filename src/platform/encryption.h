#pragma once

#include <QString>

namespace Utility {

// A one-way, repeatable transformation of a password: PBKDF2-HMAC-SHA256 with
// the key as salt and 100,000 rounds, in base64. The spaces at the text's ends
// are removed first (a tab stays), and a text of spaces only gives the empty
// text.
QString EncryptString(const QString &text, const QString &key);

// The key every user password is encrypted with.
inline constexpr char16_t kPasswordKey[] = u"fernwoodTally(";

} // namespace Utility
