#include "platform/encryption.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString encrypted(const QString &text, const QString &key = u"fernwoodTally("_s) {
    return Utility::EncryptString(text, key);
}

// Logins compare stored and freshly encrypted text, so the same input must give
// the same output each time. Only spaces are trimmed, as the runtime trimmed.
TEST(EncryptString, IsRepeatableKeyedAndTrimsSpacesOnly) {
    EXPECT_EQ(encrypted(u"s3cret"_s), encrypted(u"s3cret"_s));
    EXPECT_NE(encrypted(u"s3cret"_s), encrypted(u"s3cret"_s, u"another key"_s));
    EXPECT_NE(encrypted(u"s3creT"_s), encrypted(u"s3cret"_s));
    EXPECT_EQ(encrypted(u"  s3cret "_s), encrypted(u"s3cret"_s));
    EXPECT_NE(encrypted(u"s3cret\t"_s), encrypted(u"s3cret"_s));
    EXPECT_EQ(encrypted(u"   "_s), u""_s);
}

} // namespace
