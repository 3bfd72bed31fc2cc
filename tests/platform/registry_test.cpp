#include "platform/registry.h"
#include "platform/settingsstore.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using MachineSettingsTest = BriskoTest;

TEST_F(MachineSettingsTest, ValuesComeBackTrimmedOfSpacesAndMissingOrOddOnesEmpty) {
    Utility::RegSetString(SettingsKey::lastDB, u"  /srv/shop/bdesk.db  "_s);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), u"/srv/shop/bdesk.db"_s);
    Utility::RegSetString(SettingsKey::lastDB, u" /srv/shop/bdesk.db\t"_s);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::lastDB), u"/srv/shop/bdesk.db\t"_s);
    EXPECT_EQ(Utility::RegGetString(SettingsKey::firstRun), u""_s);
    SettingsStore::write(SettingsKey::useSharedFile, QStringList{u"True"_s, u"False"_s});
    EXPECT_EQ(Utility::RegGetString(SettingsKey::useSharedFile), u""_s);

    // The process may end straight after a write, so nothing may wait for a sync.
    Utility::RegSetString(SettingsKey::firstRun, u"no"_s);
    QFile file(tempPath(u"settings.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("firstRun=no"));
}

} // namespace
