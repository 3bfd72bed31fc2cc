#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace Utility {

// The platform's folder chooser; the folder, or the empty text on Cancel.
QString browseForFolder(QWidget *ownerWindow, const QString &title);

// Opens a file or a web address with the desktop's own handler.
void shellOpen(const QString &fileOrAddress);

// Selects the whole text, so that typing replaces the old value.
void selectAllText(QLineEdit *textBox);

// Makes `textBox` select its whole text whenever it gets the focus.
void selectAllOnFocus(QLineEdit *textBox);
void selectAllOnFocus(QPlainTextEdit *textBox);

} // namespace Utility
