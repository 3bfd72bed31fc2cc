#include "support/screens.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

void click(const QWidget &screen, const QString &name) {
    QTest::mouseClick(control<QAbstractButton>(screen, name), Qt::LeftButton);
}

// The name a screen reader says: the accessibleName, a button's text, or the
// text of the label whose buddy the control is. A combo box's own line edit
// and Qt's inner parts go by the control they belong to.
QStringList controlsWithoutAccessibleName(const QWidget &screen) {
    QStringList unnamed;
    for (QWidget *widget : screen.findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_") ||
            qobject_cast<QComboBox *>(widget->parentWidget()))
            continue;
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
        if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
            unnamed.append(widget->objectName());
    }
    return unnamed;
}

bool triggerPopupEntry(QAbstractItemView *list, const QString &name) {
    const QModelIndex current = list->currentIndex();
    const QPoint position = current.isValid() ? list->visualRect(current).center() : QPoint(4, 4);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                            list->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(list->viewport(), &event);
    auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!popup)
        return false;
    QAction *entry = nullptr;
    for (QAction *action : popup->actions())
        entry = action->objectName() == name ? action : entry;
    const bool enabled = entry && entry->isEnabled();
    popup->close();
    if (enabled)
        entry->trigger();
    return enabled;
}
