#include "app/startup.h"

#include "admin/autobackup.h"
#include "admin/databasefiles.h"
#include "admin/dbupdater.h"
#include "app/company.h"
#include "app/database.h"
#include "app/runtimeformat.h"
#include "app/schema.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "platform/registry.h"
#include "receipts/receipt.h"

#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace modMain {
namespace {

// lupdate files the texts of tr() calls under the namespace's name.
QString tr(const char *text) {
    return QCoreApplication::translate("modMain", text);
}

void showBox(const QString &text, const QString &title, Dialogs::Icon icon) {
    dialogs().message(text, title, icon, Dialogs::Buttons::Ok);
}

void showStartupError(const BriskoError &error) {
    showBox(tr("An error occured during the intilization:  ") + error.description(),
            tr("Startup Error"), Dialogs::Icon::Critical);
}

// A folder of that name is no database file.
bool isFile(const QString &path) {
    return QFileInfo(path).isFile();
}

// The local database: the last one opened, else the default file, which the
// very first start on an account puts in place.
QString localDatabasePath() {
    const QString lastDB = Utility::RegGetString(SettingsKey::lastDB);
    if (!lastDB.isEmpty())
        return lastDB;
    const QString defaultPath = Paths::defaultDatabasePath();
    if (!QFileInfo::exists(defaultPath))
        Schema::createDeliveredDatabase(defaultPath);
    return defaultPath;
}

// Asks for a database file and remembers it as the last one opened; false
// when the user cancelled and the program ends.
bool chooseAnotherDatabase() {
    Session &state = session();
    state.dbPath = openDatabaseDialog();
    if (state.dbPath.isEmpty()) {
        EndProgram();
        return false;
    }
    Utility::RegSetString(SettingsKey::lastDB, state.dbPath);
    return true;
}

// Asks for another file when the chosen one is missing; false when the user
// cancelled and the program ends.
bool ensureDatabaseExists() {
    const QString &dbPath = session().dbPath;
    if (isFile(dbPath))
        return true;
    showBox(tr("Database %1 does not exist.  Please select a database to open.").arg(dbPath),
            tr("Missing / Invalid Database"), Dialogs::Icon::Exclamation);
    return chooseAnotherDatabase();
}

// Why the file at `path` cannot serve as a Brisko database, if it cannot.
std::optional<BriskoError> openingFailure(const QString &path) {
    setConnectionString(path);
    try {
        db::readFirst(u"SELECT * FROM tblSystem "_s);
        return std::nullopt;
    } catch (const BriskoError &error) {
        return error;
    }
}

bool isEmptyFile(const QString &path) {
    return isFile(path) && QFileInfo(path).size() == 0;
}

bool agreesToSetUpEmptyFile(const QString &path) {
    return dialogs().message(
               tr("The file %1 is empty. Create a new Brisko database in it?").arg(path),
               tr("Missing / Invalid Database"), Dialogs::Icon::Question,
               Dialogs::Buttons::YesNo) == Dialogs::Answer::Yes;
}

// A local file that is no Brisko database (not a database at all, damaged,
// another program's) must not lock the owner out: after the start-up's error
// box the chooser is offered until a file opens or the user cancels. An empty
// file may become a new database instead. False when the program ends.
bool settleLocalDatabase() {
    Session &state = session();
    for (;;) {
        if (isEmptyFile(state.dbPath)) {
            if (agreesToSetUpEmptyFile(state.dbPath)) {
                db::closeConnection();
                Schema::setUpEmptyFile(state.dbPath);
                return true;
            }
        } else if (const auto failure = openingFailure(state.dbPath)) {
            showStartupError(*failure);
        } else {
            return true;
        }
        if (!chooseAnotherDatabase())
            return false;
    }
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
    if (!state.useSharedFile && !settleLocalDatabase())
        return false;
    setConnectionString(state.dbPath);
    state.year2 = QString::number(QDate::currentDate().year()).right(2);
    if (!dbUpdater::updateDatabase())
        return false;
    AutoBackup::runDaily();
    state.firstRunFlag = Utility::RegGetString(SettingsKey::firstRun).isEmpty();
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
        showStartupError(error);
        EndProgram();
        return false;
    }
}

void loadShareSettings() {
    Session &state = session();
    state.useSharedFile = false;
    state.shareFileLocation.clear();
    const QString useShared = Utility::RegGetString(SettingsKey::useSharedFile);
    if (useShared.isEmpty())
        return;
    try {
        if (!Runtime::toBoolean(useShared))
            return;
    } catch (const BriskoError &) {
        return; // text that is no yes or no: quietly local
    }
    const QString location = Utility::RegGetString(SettingsKey::shareFileLocation);
    if (!isFile(location)) {
        showBox(tr("Share file %1 could not be found.  Using local database instead.  Go to "
                   "File->Multi-user settings and check your share file settings.")
                    .arg(location),
                tr("Share File Doesn't Exist"), Dialogs::Icon::Critical);
        return;
    }
    state.useSharedFile = true;
    state.shareFileLocation = location;
}

} // namespace modMain
