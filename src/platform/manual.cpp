#include "platform/manual.h"

#include "platform/paths.h"
#include "platform/processcontrol.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

class HelpKey final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
            return false;
        if (!key->isAutoRepeat())
            Manual::openContents();
        return true;
    }
};

} // namespace

namespace Manual {

QUrl contentsPage() {
    return QUrl::fromLocalFile(Paths::resourceFolder() + u"/manual/index.html"_s);
}

void openContents() {
    processControl().openExternally(contentsPage());
}

void installHelpKey(QCoreApplication &application) {
    application.installEventFilter(new HelpKey(&application));
}

} // namespace Manual
