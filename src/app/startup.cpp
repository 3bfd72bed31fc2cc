#include "app/startup.h"

#include "admin/databasefiles.h"
#include "app/briskoerror.h"
#include "app/company.h"
#include "app/runtimeformat.h"
#include "app/schema.h"
#include "app/session.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"
#include "receipts/receipt.h"

#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace modMain {
namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("Initialise", text);
}

void showBox(const QString &text, const QString &title, Dialogs::Icon icon) {
    dialogs().message(text, title, icon, Dialogs::Buttons::Ok);
}

// The local database: the last one opened, else the default file, which the
// very first start on an account puts in place.
QString localDatabasePath() {
    const QString lastDB = Utility::RegGetString(u"lastDB"_s);
    if (!lastDB.isEmpty())
        return lastDB;
    const QString defaultPath = Paths::defaultDatabasePath();
    if (!QFileInfo::exists(defaultPath))
        Schema::createDeliveredDatabase(defaultPath);
    return defaultPath;
}

// Asks for another file when the chosen one is missing; false when the user
// cancelled and the program ends.
bool ensureDatabaseExists() {
    Session &state = session();
    if (QFileInfo::exists(state.dbPath))
        return true;
    showBox(tr("Database %1 does not exist.  Please select a database to open.").arg(state.dbPath),
            tr("Missing / Invalid Database"), Dialogs::Icon::Exclamation);
    state.dbPath = openDatabaseDialog();
    if (state.dbPath.isEmpty()) {
        EndProgram();
        return false;
    }
    Utility::RegSetString(u"lastDB"_s, state.dbPath);
    return true;
}

void endForLackOfYear(const QString &text) {
    showBox(text, tr("Program Failure"), Dialogs::Icon::Critical);
    EndProgram();
}

// The start number of the new year as typed, or worked out from the last one.
QString askStartNumber() {
    if (company().resetNumberEOY) {
        return dialogs().input(
            tr("Entering the starting number for the receipt.  Must be greater or equal to 1."),
            tr("Starting Number"));
    }
    return QString::number(Receipt().GetLastReceiptNumber() + 1);
}

// Loops until a start number is accepted; empty when the user aborted.
QString acceptedStartNumber() {
    for (;;) {
        const QString text = askStartNumber();
        if (text.isEmpty()) {
            const auto answer = dialogs().message(tr("Abort this process?"), tr("Abort New Year"),
                                                  Dialogs::Icon::Question, Dialogs::Buttons::YesNo);
            if (answer == Dialogs::Answer::Yes) {
                endForLackOfYear(tr("User aborted.  This program can not continue without "
                                    "creating the new year."));
                return {};
            }
        }
        if (!Runtime::isNumeric(text)) {
            showBox(tr("Starting number can only contain digits"), tr("Invalid Starting Number"),
                    Dialogs::Icon::Exclamation);
            continue;
        }
        if (Runtime::toInt32(text) > 0)
            return text;
        showBox(tr("Starting number must be greater than zero"), tr("Invalid Starting Number"),
                Dialogs::Icon::Exclamation);
    }
}

// Makes the numbering row of a year that has none; false when the program ends.
bool runYearChange() {
    const QString year2 = session().year2;
    const auto answer = dialogs().message(
        tr("The program has detected a change in the receipt year.") + u'\n' +
            tr("and will create a new year for %1.  Click OK to proceed.").arg(year2),
        tr("Year Change"), Dialogs::Icon::Information, Dialogs::Buttons::OkCancel);
    if (answer == Dialogs::Answer::Cancel) {
        endForLackOfYear(tr("This program can not continue without creating the new year."));
        return false;
    }
    const QString startNumber = acceptedStartNumber();
    if (startNumber.isEmpty())
        return false;
    if (!Receipt().createReceiptYear(year2, startNumber)) {
        showBox(tr("The receipt year could not be created.  This program can not continue."),
                tr("Error"), Dialogs::Icon::Critical);
        EndProgram();
        return false;
    }
    return true;
}

bool initialiseSteps() {
    Session &state = session();
    loadShareSettings();
    state.dbPath = state.useSharedFile ? state.shareFileLocation : localDatabasePath();
    if (!ensureDatabaseExists())
        return false;
    setConnectionString(state.dbPath);
    state.year2 = QString::number(QDate::currentDate().year()).right(2);
    state.firstRunFlag = Utility::RegGetString(u"firstRun"_s).isEmpty();
    loadCompanyInfo();
    if (Receipt().checkForYearChange(state.year2))
        return runYearChange();
    return true;
}

} // namespace

bool Initialise() {
    try {
        return initialiseSteps();
    } catch (const BriskoError &error) {
        showBox(tr("An error occured during the intilization:  ") + error.description(),
                tr("Startup Error"), Dialogs::Icon::Critical);
        EndProgram();
        return false;
    }
}

void loadShareSettings() {
    Session &state = session();
    state.useSharedFile = false;
    state.shareFileLocation.clear();
    const QString useShared = Utility::RegGetString(u"useSharedFile"_s);
    if (useShared.isEmpty())
        return;
    try {
        if (!Runtime::toBoolean(useShared))
            return;
    } catch (const BriskoError &) {
        return; // text that is no yes or no: quietly local
    }
    const QString location = Utility::RegGetString(u"shareFileLocation"_s);
    if (!QFileInfo::exists(location)) {
        showBox(tr("Share file %1 could not be found.  Using local database instead.  Go to "
                   "File->Multi-user settings and check your share file settings.")
                    .arg(location),
                tr("Share File Doesn't Exist"), Dialogs::Icon::Critical);
        return;
    }
    state.useSharedFile = true;
    state.shareFileLocation = location;
}

void EndProgram() {
    session().shuttingDown = true;
    processControl().endProgram();
}

} // namespace modMain
