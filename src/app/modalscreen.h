#pragma once

#include "platform/dialogs.h"

#include <QDialog>
#include <functional>

class BriskoError;
class QAction;
class QIcon;
class QLayout;
class QToolBar;

// The one shape of a Brisko dialog. A new screen follows frmUser:
//
//  - a .ui form named after the screen (frmUser.ui), its widgets named as the
//    screen's controls (txtUsername, cmdOK), held by std::unique_ptr<Ui::frmUser>;
//    each input and list has a label whose buddy it is, or an accessibleName;
//  - public fields for what the caller sets before exec() and reads after it
//    (frmUser::userID), and nothing else public but the constructor;
//  - load() fills the screen from those fields; it runs once, after the caller
//    has set them and before the screen first shows. It may close the screen
//    (reject() or accept()), and then the screen never shows and exec() returns;
//  - each command is a private function connected to its control, and runs its
//    work through runCommand(lead, body), so that a BriskoError becomes the
//    failure box with its own lead text and no exception leaves a slot.
//
// The caller writes:  frmUser screen(this); screen.userID = id; screen.exec();
// The screen centres itself over its parent's window, or on the screen when
// it has none.
class ModalScreen : public QDialog {
    Q_OBJECT

public:
    explicit ModalScreen(QWidget *parent = nullptr);

    int exec() override;
    void setVisible(bool visible) override;
    void done(int result) override;

    // The failure box of a command: `lead` followed by the error's description.
    static void showFailure(const QString &lead, const BriskoError &error,
                            const QString &title = tr("Error"),
                            Dialogs::Icon icon = Dialogs::Icon::Critical);

protected:
    // Fills the screen from its public fields; see above. Catches its own errors.
    virtual void load() {}

    // Runs `body`; a BriskoError it raises is shown by showFailure with `lead`,
    // and the screen stays as it is. True when `body` ran through.
    bool runCommand(const QString &lead, const std::function<void()> &body);
    // The same, for a command whose failure box has a title of its own.
    bool runCommand(const QString &lead, const QString &title, const std::function<void()> &body);

    // A screen's tool bar, `SSActiveToolBars1`, with text beside the icons,
    // set above everything else in `layout`.
    QToolBar *addToolBar(QLayout *layout);
    // A tool on `bar`: its id is its objectName, its text its accessible name.
    static QAction *addTool(QToolBar *bar, const QString &id, const QString &text,
                            const QIcon &icon = {});
    // The "Close" tool a screen's bar ends with; it closes the screen as Escape does.
    QAction *addCloseTool(QToolBar *bar);

    void showEvent(QShowEvent *event) override;

private:
    bool loadOnce();
    void centre();

    bool m_loaded = false;
    bool m_loading = false;
    bool m_closedWhileLoading = false;
    bool m_centred = false;
};
