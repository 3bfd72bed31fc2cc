#include "app/installcheck.h"

#include "platform/dialogs.h"
#include "platform/paths.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace Installation {
namespace {

// A long list is cut short, so that the box still fits on the screen.
constexpr qsizetype kFilesNamed = 10;

QString fileList(const QStringList &files) {
    QStringList lines = files.first(qMin(files.size(), kFilesNamed));
    if (files.size() > kFilesNamed)
        lines.append(QCoreApplication::translate("Installation", "... and %1 more")
                         .arg(files.size() - kFilesNamed));
    return lines.join(u'\n');
}

QString placesLookedIn() {
    QStringList places = Paths::resourceCandidates();
    for (QString &place : places)
        place = QDir::toNativeSeparators(place);
    return places.join(u'\n');
}

} // namespace

bool confirmShippedFilesPresent() {
    const QStringList missing = Paths::missingResources();
    if (missing.isEmpty())
        return true;
    const QString text = QCoreApplication::translate(
        "Installation", "Brisko cannot start because some of its files are missing:\n\n%1\n\n"
                        "It looked for them in:\n%2\n\nPlease install Brisko again.");
    dialogs().message(text.arg(fileList(missing), placesLookedIn()),
                      QCoreApplication::translate("Installation", "Missing Files"),
                      Dialogs::Icon::Critical);
    return false;
}

} // namespace Installation
