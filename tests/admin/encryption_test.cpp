#include "platform/encryption.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kKey = QString::fromUtf16(Utility::kPasswordKey);

// Logins compare stored and freshly encrypted text, so the transformation
// must repeat itself exactly and must not let blanks through.
TEST(EncryptString, IsRepeatableKeyedAndTrimmed) {
    const QString once = Utility::EncryptString(u"s3cret"_s, kKey);
    EXPECT_FALSE(once.isEmpty());
    EXPECT_NE(once, u"s3cret"_s);
    EXPECT_EQ(Utility::EncryptString(u"s3cret"_s, kKey), once);
    EXPECT_EQ(Utility::EncryptString(u"  s3cret "_s, kKey), once);
    EXPECT_NE(Utility::EncryptString(u"s3creT"_s, kKey), once);
    EXPECT_NE(Utility::EncryptString(u"s3cret"_s, u"anotherKey"_s), once);
}

TEST(EncryptString, BlankTextGivesTheEmptyText) {
    EXPECT_TRUE(Utility::EncryptString(QString(), kKey).isEmpty());
    EXPECT_TRUE(Utility::EncryptString(u"   "_s, kKey).isEmpty());
}

} // namespace
