#pragma once

#include <QUrl>

class QCoreApplication;

// Brisko's manual: HTML pages in manual/ of the resource folder, read in the
// desktop's browser.
namespace Manual {

QUrl contentsPage();

// Opens the manual's first page through the process control.
void openContents();

// Makes F1 open the manual from every window of the program. A window whose
// own F1 tool takes the key first, as the main window's does, keeps it.
void installHelpKey(QCoreApplication &application);

} // namespace Manual
