#include "app/modalscreen.h"
#include "platform/briskoerror.h"
#include "support/briskotest.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

// A screen whose load reads its public field, and may close it at once, as a
// screen does that finds nothing to show.
class LoadingScreen : public ModalScreen {
    Q_OBJECT

public:
    using ModalScreen::ModalScreen;
    using ModalScreen::runCommand;

    bool closeOnLoad = false;
    QStringList loads;

protected:
    void load() override {
        loads.append(closeOnLoad ? u"closing"_s : u"staying"_s);
        if (closeOnLoad)
            reject();
    }
};

using ModalScreenTest = BriskoTest;

TEST_F(ModalScreenTest, LoadRunsOnceAndACommandsFailureShowsItsBoxWhileTheScreenStays) {
    LoadingScreen closing;
    closing.closeOnLoad = true;
    EXPECT_EQ(closing.exec(), QDialog::Rejected) << "and did not hang";
    EXPECT_EQ(closing.loads, QStringList{u"closing"_s});

    QWidget owner;
    owner.setGeometry(100, 80, 900, 700);
    owner.show();
    LoadingScreen staying(&owner);
    staying.resize(200, 100);
    driveModal<LoadingScreen>([&] { staying.exec(); },
                              [&](LoadingScreen &screen) {
                                  EXPECT_EQ(screen.frameGeometry().center(),
                                            owner.frameGeometry().center());
                                  screen.accept();
                              });
    staying.show();
    EXPECT_EQ(staying.loads, QStringList{u"staying"_s});

    LoadingScreen screen;
    screen.show();
    EXPECT_FALSE(screen.runCommand(u"An error has occured:  "_s,
                                   [] { throw BriskoError(5, u"Receipt.Void:  it's gone"_s); }));
    ModalScreen::showFailure(u"Could not print: "_s, BriskoError(1, u"no printer"_s), u"Print"_s,
                             Dialogs::Icon::Exclamation);
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Error | An error has occured:  Receipt.Void:  it's gone | Critical"_s,
                           u"Print | Could not print: no printer | Exclamation"_s}));
    EXPECT_TRUE(screen.isVisible());

    // The fixture's check finds an input that a screen reader could not name.
    (new QLineEdit(&screen))->setObjectName(u"txtBare"_s);
    EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList{u"txtBare"_s});
}

} // namespace

#include "modalscreen_test.moc"
