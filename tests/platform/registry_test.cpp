#include "platform/registry.h"
#include "platform/settingsstore.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using MachineSettingsTest = BriskoTest;

TEST_F(MachineSettingsTest, ValuesComeBackTrimmedAndMissingOrOddOnesEmpty) {
    Utility::RegSetString(u"lastDB"_s, u"  /srv/shop/bdesk.db \t"_s);
    EXPECT_EQ(Utility::RegGetString(u"lastDB"_s), u"/srv/shop/bdesk.db"_s);
    EXPECT_EQ(Utility::RegGetString(u"firstRun"_s), u""_s);
    SettingsStore::write(u"useSharedFile"_s, QStringList{u"True"_s, u"False"_s});
    EXPECT_EQ(Utility::RegGetString(u"useSharedFile"_s), u""_s);

    // The process may end straight after a write, so nothing may wait for a sync.
    Utility::RegSetString(u"firstRun"_s, u"no"_s);
    QFile file(tempPath(u"settings.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("firstRun=no"));
}

} // namespace
