#include "app/startup.h"
#include "mainwin/frmmain.h"
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
    QApplication::setWindowIcon(QIcon(u":/icons/brisko.png"_s));
    QLocale::setDefault(QLocale::system());

    if (!modMain::Initialise())
        return 0;
    frmMain window;
    window.show();
    if (!window.load())
        return 0;
    return QApplication::exec();
}
