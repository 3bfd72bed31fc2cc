#include "platform/shell.h"

#include "platform/dialogs.h"
#include "platform/processcontrol.h"

#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <QUrl>

namespace Utility {
namespace {

// Selects the text once the focus has settled: a mouse press that gave the
// focus would otherwise place the cursor and undo the selection.
template <typename TextBox> class SelectAllOnFocus final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::FocusIn) {
            auto *textBox = static_cast<TextBox *>(watched);
            QTimer::singleShot(0, textBox, [textBox] { textBox->selectAll(); });
        }
        return false;
    }
};

} // namespace

QString browseForFolder(QWidget *ownerWindow, const QString &title) {
    Q_UNUSED(ownerWindow);
    return dialogs().chooseFolder(title);
}

void shellOpen(const QString &fileOrAddress) {
    const QUrl url =
        QFileInfo::exists(fileOrAddress) ? QUrl::fromLocalFile(fileOrAddress) : QUrl(fileOrAddress);
    processControl().openExternally(url);
}

void selectAllText(QLineEdit *textBox) {
    textBox->setSelection(0, static_cast<int>(textBox->text().length()));
}

void selectAllOnFocus(QLineEdit *textBox) {
    textBox->installEventFilter(new SelectAllOnFocus<QLineEdit>(textBox));
}

void selectAllOnFocus(QPlainTextEdit *textBox) {
    textBox->installEventFilter(new SelectAllOnFocus<QPlainTextEdit>(textBox));
}

} // namespace Utility
