#include "app/modalscreen.h"

#include "platform/briskoerror.h"

#include <QAction>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QToolBar>

ModalScreen::ModalScreen(QWidget *parent)
    : QDialog(parent) {}

// A load() that closed the screen has left no event loop to end: entering
// one now would wait for ever on a hidden dialog.
int ModalScreen::exec() {
    if (!loadOnce())
        return result();
    return QDialog::exec();
}

void ModalScreen::setVisible(bool visible) {
    if (visible && !loadOnce())
        return;
    QDialog::setVisible(visible);
}

void ModalScreen::done(int result) {
    if (m_loading)
        m_closedWhileLoading = true;
    QDialog::done(result);
}

// False when load() closed the screen.
bool ModalScreen::loadOnce() {
    if (!m_loaded) {
        m_loaded = true;
        m_loading = true;
        load();
        m_loading = false;
    }
    return !m_closedWhileLoading;
}

void ModalScreen::showFailure(const QString &lead, const BriskoError &error, const QString &title,
                              Dialogs::Icon icon) {
    dialogs().message(lead + error.description(), title, icon);
}

bool ModalScreen::runCommand(const QString &lead, const std::function<void()> &body) {
    return runCommand(lead, tr("Error"), body);
}

bool ModalScreen::runCommand(const QString &lead, const QString &title,
                             const std::function<void()> &body) {
    try {
        body();
        return true;
    } catch (const BriskoError &error) {
        showFailure(lead, error, title);
        return false;
    }
}

void ModalScreen::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    if (!m_centred) {
        m_centred = true;
        centre();
    }
}

void ModalScreen::centre() {
    const QWidget *owner = parentWidget() ? parentWidget()->window() : nullptr;
    const QRect area =
        owner && owner->isVisible() ? owner->frameGeometry() : screen()->availableGeometry();
    QRect frame = frameGeometry();
    frame.moveCenter(area.center());
    move(frame.topLeft());
}

QToolBar *ModalScreen::addToolBar(QLayout *layout) {
    auto *bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("SSActiveToolBars1"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    layout->setMenuBar(bar);
    return bar;
}

QAction *ModalScreen::addTool(QToolBar *bar, const QString &id, const QString &text,
                              const QIcon &icon) {
    QAction *tool = bar->addAction(icon, text);
    tool->setObjectName(id);
    bar->widgetForAction(tool)->setAccessibleName(text);
    return tool;
}

QAction *ModalScreen::addCloseTool(QToolBar *bar) {
    QAction *close = addTool(bar, QStringLiteral("ID_Close"), tr("Close"),
                             QIcon::fromTheme(QStringLiteral("window-close"),
                                              style()->standardIcon(QStyle::SP_DialogCloseButton)));
    connect(close, &QAction::triggered, this, &ModalScreen::reject);
    return close;
}
