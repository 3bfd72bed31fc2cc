#include "platform/registry.h"
#include "platform/settingsstore.h"
#include "platform/shell.h"
#include "support/briskotest.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

using MachineSettingsTest = BriskoTest;

TEST_F(MachineSettingsTest, ValuesComeBackTrimmedAndMissingOnesEmpty) {
    Utility::RegSetString(u"lastDB"_s, u"  /srv/shop/bdesk.db \t"_s);
    EXPECT_EQ(Utility::RegGetString(u"lastDB"_s), u"/srv/shop/bdesk.db"_s);
    EXPECT_EQ(Utility::RegGetString(u"firstRun"_s), u""_s);
}

TEST_F(MachineSettingsTest, AValueThatIsNoTextReadsEmpty) {
    SettingsStore::write(u"useSharedFile"_s, QStringList{u"True"_s, u"False"_s});
    EXPECT_EQ(Utility::RegGetString(u"useSharedFile"_s), u""_s);
}

TEST_F(MachineSettingsTest, AWrittenValueIsOnDiskAtOnce) {
    // The process may end straight after a write, so nothing may wait for a sync.
    Utility::RegSetString(u"firstRun"_s, u"no"_s);
    QFile file(tempPath(u"settings.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("firstRun=no"));
}

TEST(SelectAllText, SelectsTheWholeText) {
    QLineEdit amount(u"12.50"_s);
    amount.setCursorPosition(2);
    Utility::selectAllText(&amount);
    EXPECT_EQ(amount.selectedText(), u"12.50"_s);
}

} // namespace
