#include "platform/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace {

std::unique_ptr<Dialogs> &current() {
    static std::unique_ptr<Dialogs> instance = std::make_unique<WidgetDialogs>();
    return instance;
}

QMessageBox::Icon toQtIcon(Dialogs::Icon icon) {
    switch (icon) {
    case Dialogs::Icon::Critical:
        return QMessageBox::Critical;
    case Dialogs::Icon::Question:
        return QMessageBox::Question;
    case Dialogs::Icon::Exclamation:
        return QMessageBox::Warning;
    case Dialogs::Icon::Information:
        return QMessageBox::Information;
    case Dialogs::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons toQtButtons(Dialogs::Buttons buttons) {
    switch (buttons) {
    case Dialogs::Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Dialogs::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Dialogs::Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Dialogs::Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Dialogs::Answer fromQtButton(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return Dialogs::Answer::Cancel;
    case QMessageBox::Yes:
        return Dialogs::Answer::Yes;
    case QMessageBox::No:
        return Dialogs::Answer::No;
    default:
        return Dialogs::Answer::Ok;
    }
}

QWidget *owner() {
    return QApplication::activeWindow();
}

} // namespace

Dialogs &dialogs() {
    return *current();
}

std::unique_ptr<Dialogs> installDialogs(std::unique_ptr<Dialogs> replacement) {
    std::swap(current(), replacement);
    return replacement;
}

Dialogs::Answer WidgetDialogs::message(const QString &text, const QString &title, Icon icon,
                                       Buttons buttons) {
    QMessageBox box(toQtIcon(icon), title, text, toQtButtons(buttons), owner());
    return fromQtButton(box.exec());
}

QString WidgetDialogs::input(const QString &prompt, const QString &title,
                             const QString &defaultText) {
    bool accepted = false;
    const QString text =
        QInputDialog::getText(owner(), title, prompt, QLineEdit::Normal, defaultText, &accepted);
    return accepted ? text : QString();
}

QString WidgetDialogs::openFile(const FileRequest &request) {
    const QString start =
        request.fileName.isEmpty() ? request.folder : request.folder + u'/' + request.fileName;
    return QFileDialog::getOpenFileName(owner(), request.title, start, request.filter);
}

QString WidgetDialogs::saveFile(const FileRequest &request) {
    const QString start =
        request.fileName.isEmpty() ? request.folder : request.folder + u'/' + request.fileName;
    // Brisko's callers ask their own question about a file that exists.
    return QFileDialog::getSaveFileName(owner(), request.title, start, request.filter, nullptr,
                                        QFileDialog::DontConfirmOverwrite);
}

QString WidgetDialogs::chooseFolder(const QString &title) {
    return QFileDialog::getExistingDirectory(owner(), title);
}
