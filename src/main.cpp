#include "app/installcheck.h"
#include "app/startup.h"
#include "app/translations.h"
#include "mainwin/frmmain.h"
#include "platform/manual.h"
#include "version.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"TOLVERAN"_s);
    QApplication::setApplicationName(u"Brisko"_s);
    QApplication::setApplicationVersion(
        u"%1.%2.%3"_s.arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
    // Ties the windows to the desktop entry, and so to the icon in the menu.
    QGuiApplication::setDesktopFileName(QString::fromLatin1(kDesktopFileName));
    QApplication::setWindowIcon(QIcon(u":/icons/brisko.svg"_s));
    QLocale::setDefault(QLocale::system());
    Translations::useLanguageOf(QLocale::system());
    Manual::installHelpKey(application);

    if (!Installation::confirmShippedFilesPresent())
        return 1;
    if (!modMain::Initialise())
        return 0;
    frmMain window;
    window.show();
    if (!window.load())
        return 0;
    return QApplication::exec();
}
