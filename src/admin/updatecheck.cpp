#include "admin/updatecheck.h"

#include "admin/updatechecker.h"
#include "app/runtimeformat.h"
#include "platform/dialogs.h"
#include "platform/processcontrol.h"
#include "platform/waitcursor.h"
#include "version.h"
#include "website.h"

#include <QCoreApplication>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

// The texts of the update check.
struct UpdateCheck {
    Q_DECLARE_TR_FUNCTIONS(UpdateCheck)
};

// Versions compare as whole numbers of their digits run together, so 4.2.5
// is 425; how many digits a part has decides, so 4.10.0 (4100) is newer than
// 5.0.1 (501).
qint32 versionNumber(const QString &version) {
    return Runtime::toInt32(QString(version).remove(u'.'));
}

qint32 ownVersionNumber() {
    return Runtime::toInt32(QString::number(kVersionMajor) + QString::number(kVersionMinor) +
                            QString::number(kVersionRevision));
}

QUrl downloadAddress() {
    return QUrl(QString::fromUtf8(kWebsite) + u"/files/Brisko/BriskoSetup.zip"_s);
}

} // namespace

namespace modMain {

void checkForUpdate() {
    checkForUpdate(UpdateChecker());
}

void checkForUpdate(const UpdateChecker &checker) {
    QString newest;
    {
        // Only while asking: the boxes that follow take the ordinary pointer.
        const WaitCursor waiting;
        newest = checker.getLatestVersion();
    }
    if (versionNumber(newest) <= ownVersionNumber()) {
        dialogs().message(
            UpdateCheck::tr("You are already running the most recent version of Brisko"),
            UpdateCheck::tr("Check for Update"), Dialogs::Icon::Information);
        return;
    }
    const Dialogs::Answer answer = dialogs().message(
        UpdateCheck::tr("Brisko version %1 is available.  Would you like to download it now?")
            .arg(newest),
        UpdateCheck::tr("Update Available"), Dialogs::Icon::Question, Dialogs::Buttons::YesNo);
    if (answer == Dialogs::Answer::Yes)
        processControl().openExternally(downloadAddress());
}

} // namespace modMain
