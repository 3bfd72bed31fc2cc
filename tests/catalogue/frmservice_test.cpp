#include "catalogue/frmservice.h"
#include "cataloguetest.h"

#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>

namespace {

const QStringList panel = {u"cmdAdd"_s,    u"cmdEdit"_s, u"cmdDelete"_s, u"cmdOK"_s,
                           u"cmdCancel"_s, u"Frame2"_s,  u"shortName"_s};

using ServiceScreenTest = CatalogueTest;

TEST_F(ServiceScreenTest, AddsShowsEditsAndDeletesADescription) {
    const qint32 existing = addService(u"Assembly"_s, u"Flat-pack assembly"_s, u"1234.5"_s);

    driveModal<frmService>(
        [this] { mainWindow().toolClick(u"ID_ServiceDescriptions"_s); },
        [&](frmService &screen) {
            auto *list = control<QListView>(screen, u"lstServices"_s);
            EXPECT_EQ(screen.windowTitle(), u"Manage Services"_s);
            EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
            EXPECT_EQ(enabled(screen, panel), u"1000000"_s);

            click(screen, u"cmdAdd"_s);
            EXPECT_EQ(enabled(screen, panel), u"1000111"_s);
            EXPECT_EQ(control<QLineEdit>(screen, u"defaultCost"_s)->text(), u"0.00"_s);
            type(screen, u"shortName"_s, u"O'Hare's 100% tune-up"_s);
            EXPECT_FALSE(control<QWidget>(screen, u"cmdOK"_s)->isEnabled()) << "no description";
            type(screen, u"longDesc"_s, u"Full tune-up"_s);
            type(screen, u"defaultCost"_s, u"abc"_s);
            click(screen, u"cmdOK"_s);
            EXPECT_EQ(control<QPlainTextEdit>(screen, u"longDesc"_s)->toPlainText(),
                      u"Full tune-up"_s);
            type(screen, u"defaultCost"_s, u"80"_s);
            click(screen, u"cmdOK"_s);
            EXPECT_EQ(rowsOf(list), (QStringList{u"Assembly"_s, u"O'Hare's 100% tune-up"_s}));
            EXPECT_EQ(enabled(screen, panel), u"1000000"_s);

            clickRow(list, 0);
            EXPECT_EQ(enabled(screen, panel), u"1110110"_s) << "shown, not yet editable";
            EXPECT_EQ(control<QLineEdit>(screen, u"defaultCost"_s)->text(), u"1,234.50"_s);
            click(screen, u"cmdEdit"_s);
            type(screen, u"defaultCost"_s, u"99"_s);
            click(screen, u"cmdCancel"_s);
            EXPECT_EQ(enabled(screen, panel), u"1000000"_s);

            clickRow(list, 0);
            boxes().answers << Dialogs::Answer::Yes;
            click(screen, u"cmdDelete"_s);
            EXPECT_EQ(rowsOf(list), QStringList{u"O'Hare's 100% tune-up"_s});
            EXPECT_EQ(enabled(screen, panel), u"1000000"_s);
            screen.findChild<QAction *>(u"ID_Close"_s)->trigger();
        });
    EXPECT_EQ(
        boxes().lines(),
        (QStringList{
            u"Error | Invalid default cost amount.  Please correct and try again. | Critical"_s,
            u"Confirm Delete | Are you sure you want to remove this service description? | "
            "Question"_s,
            u"OK | The service description has been removed. | Information"_s}));
    EXPECT_FALSE(Service().GetService(existing));
}

} // namespace
