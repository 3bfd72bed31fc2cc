#include "output/mailsettings.h"
#include "platform/keychain.h"
#include "support/briskotest.h"

#include <QFile>
#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace {

class FakeKeychain final : public Keychain {
public:
    QHash<QString, QString> entries;

    std::optional<QString> read(const QString &key) override {
        return entries.contains(key) ? std::optional(entries.value(key)) : std::nullopt;
    }
    bool write(const QString &key, const QString &secret) override {
        entries.insert(key, secret);
        return true;
    }
    void remove(const QString &key) override { entries.remove(key); }
};

using MailSettingsTest = BriskoTest;

// Without a keychain the password lies in a file only its owner reads; once
// a keychain is there, it moves into it, and leaves with authentication.
TEST_F(MailSettingsTest, ThePasswordGoesToTheKeychainOrAPrivateFile) {
    const QString file = tempPath(u"settings.ini"_s);
    const auto fileText = [&] {
        QFile settings(file);
        settings.open(QIODevice::ReadOnly);
        return settings.readAll();
    };
    MailSettings settings;
    settings.mailServer = u"mail.example.org"_s;
    settings.mailUsername = u"till"_s;
    settings.mailPassword = u"old"_s;
    settings.mailPort = 587;
    settings.store();
    EXPECT_TRUE(fileText().contains("old"));
    EXPECT_EQ(QFile::permissions(file) & 0x0FF, QFile::Permissions()) << "group and others";
    EXPECT_EQ(MailSettings::stored().mailPassword, u"old"_s);

    auto fake = std::make_unique<FakeKeychain>();
    FakeKeychain &keychain = *fake;
    installKeychain(std::move(fake));
    settings.mailPassword = u"s3cret"_s;
    settings.store();
    EXPECT_FALSE(fileText().contains("old") || fileText().contains("s3cret"));
    EXPECT_EQ(MailSettings::stored().mailPassword, u"s3cret"_s);
    EXPECT_EQ(MailSettings::stored().mailPort, 587);

    settings.mailUsername.clear();
    settings.mailPassword.clear();
    settings.store();
    EXPECT_TRUE(keychain.entries.isEmpty());
    EXPECT_EQ(MailSettings::stored().mailPassword, QString());
}

} // namespace
