#include "platform/encryption.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

// Logins compare stored and freshly encrypted text, so the transformation must
// repeat itself exactly, depend on the key, and let no blanks through.
TEST(EncryptString, IsRepeatableKeyedAndTrimmed) {
    const QString key = QString::fromUtf16(Utility::kPasswordKey);
    const QString once = Utility::EncryptString(u"s3cret"_s, key);
    EXPECT_FALSE(once.isEmpty());
    EXPECT_EQ(Utility::EncryptString(u"  s3cret "_s, key), once);
    EXPECT_NE(Utility::EncryptString(u"s3creT"_s, key), once);
    EXPECT_NE(Utility::EncryptString(u"s3cret"_s, u"anotherKey"_s), once);
    EXPECT_EQ(Utility::EncryptString(u"   "_s, key), u""_s);
}
