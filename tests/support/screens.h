#pragma once

// Driving screens as a person would: through the real command that opens
// them, by their control names, while they are modal.

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <gtest/gtest.h>
#include <type_traits>

// Runs `open`, the command that shows a modal screen of type Screen (a tool
// click, another screen's button). Once it is modal, `act` drives it and
// closes it as a person would, opening any further screen with a driveModal of
// its own. Gives back what `act` returns: read after the close, the screen's
// public results, e.g. `click(screen, u"cmdOK"_s); return screen.userID;`.
template <typename Screen, typename Open, typename Act>
auto driveModal(Open &&open, Act &&act) -> std::invoke_result_t<Act, Screen &> {
    using Result = std::invoke_result_t<Act, Screen &>;
    std::conditional_t<std::is_void_v<Result>, bool, Result> result{};
    bool acted = false;
    int ticksAfterActing = 0;
    QTimer poll;
    poll.setInterval(5);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto *modal = qobject_cast<Screen *>(QApplication::activeModalWidget());
        if (!acted && modal) {
            acted = true;
            if constexpr (std::is_void_v<Result>)
                act(*modal);
            else
                result = act(*modal);
        } else if (acted && modal && ++ticksAfterActing > 400) {
            ADD_FAILURE() << "the modal screen stayed open";
            modal->reject(); // or the test would hang
        }
    });
    poll.start();
    open();
    poll.stop();
    EXPECT_TRUE(acted) << "no modal " << Screen::staticMetaObject.className() << " was shown";
    if constexpr (!std::is_void_v<Result>)
        return result;
}

// The control of `screen` with this objectName and type; a missing one ends
// the test program with its name.
template <typename Control> Control *control(const QWidget &screen, const QString &name) {
    auto *found = screen.findChild<Control *>(name);
    if (!found)
        qFatal("no %s named %s", Control::staticMetaObject.className(), qPrintable(name));
    return found;
}

// A mouse click on the button `name` of `screen`.
void click(const QWidget &screen, const QString &name);

// The controls of `screen` a person can tab or click into (inputs, lists,
// check boxes, buttons) that a screen reader would find without a name.
QStringList controlsWithoutAccessibleName(const QWidget &screen);

// Opens the context menu of `list` over its current row (or its top when it
// has none) and triggers the entry `name`. False when no popup showed or it
// holds no enabled entry by that name.
bool triggerPopupEntry(QAbstractItemView *list, const QString &name);
