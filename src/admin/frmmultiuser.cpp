#include "admin/frmmultiuser.h"
#include "ui_frmMultiUser.h"

#include "admin/databasecopy.h"
#include "app/database.h"
#include "app/session.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/processcontrol.h"
#include "platform/registry.h"
#include "platform/shell.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// The database on a share always has this name.
const QString kShareFileSuffix = u"/bdesk.db"_s;

} // namespace

frmMultiUser::frmMultiUser(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmMultiUser>()) {
    ui->setupUi(this);
    Utility::selectAllOnFocus(ui->fileLocation);

    connect(ui->optSharedOff, &QRadioButton::clicked, this, &frmMultiUser::chooseStandAlone);
    connect(ui->optSharedOn, &QRadioButton::clicked, this, &frmMultiUser::chooseShared);
    connect(ui->fileLocation, &QLineEdit::textChanged, this, &frmMultiUser::updateOkButton);
    connect(ui->copyLocal, &QCheckBox::clicked, this, &frmMultiUser::updateOkButton);
    connect(ui->cmdBrowse, &QPushButton::clicked, this, &frmMultiUser::browse);
    connect(ui->cmdRemoveLock, &QPushButton::clicked, this, &frmMultiUser::removeLock);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmMultiUser::confirm);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmMultiUser::reject);
}

frmMultiUser::~frmMultiUser() = default;

void frmMultiUser::load() {
    const Session &state = session();
    if (state.useSharedFile) {
        ui->optSharedOn->setChecked(true);
        QString folder = state.shareFileLocation;
        folder.remove(kShareFileSuffix);
        ui->fileLocation->setText(folder);
    } else {
        ui->optSharedOff->setChecked(true);
        ui->fileLocation->clear();
    }
    enableSharedControls(state.useSharedFile);
    if (fromWizard) {
        ui->optSharedOff->hide();
        ui->optSharedOn->setChecked(true);
        enableSharedControls(true);
        ui->copyLocal->hide();
        ui->copyLocal->setChecked(false);
    }
    ui->cmdOK->setEnabled(false);
}

void frmMultiUser::chooseStandAlone() {
    enableSharedControls(false);
    ui->cmdOK->setEnabled(true);
}

void frmMultiUser::chooseShared() {
    enableSharedControls(true);
    updateOkButton();
}

void frmMultiUser::enableSharedControls(bool enabled) {
    for (QWidget *control : std::initializer_list<QWidget *>{ui->Frame1, ui->fileLocation,
                                                             ui->cmdBrowse, ui->copyLocal})
        control->setEnabled(enabled);
}

void frmMultiUser::updateOkButton() {
    ui->cmdOK->setEnabled(!ui->fileLocation->text().isEmpty());
}

void frmMultiUser::browse() {
    ui->fileLocation->setText(Utility::browseForFolder(this, tr("Shared File Location")));
}

void frmMultiUser::removeLock() {
    const QString location = session().shareFileLocation;
    QFile lock(location + u".lck"_s);
    if (!lock.exists()) {
        dialogs().message(tr("A lock file was not found for %1").arg(location), tr("No lock file"),
                          Dialogs::Icon::Information);
        return;
    }
    const bool removed = runCommand(tr("An error has occured:  "), [&lock] {
        if (!lock.remove())
            throw BriskoError(RuntimeError::DatabaseError, lock.errorString());
    });
    if (removed)
        dialogs().message(tr("Lock file removed."), tr("Success"), Dialogs::Icon::Information);
}

void frmMultiUser::confirm() {
    const auto answer = dialogs().message(tr("Are you sure you want to use these settings?"),
                                          tr("Confirm Settings"), Dialogs::Icon::Question,
                                          Dialogs::Buttons::YesNoCancel);
    if (answer != Dialogs::Answer::Yes)
        return;
    runCommand(tr("An error has occured:  "), [this] {
        if (!ui->optSharedOn->isChecked()) {
            saveAndRestart(false, QString());
            return;
        }
        const QString folder = ui->fileLocation->text();
        if (!checkSharedFolder(folder))
            return;
        const QString target = folder + kShareFileSuffix;
        if (ui->copyLocal->isChecked())
            copyToShare(folder, target);
        saveAndRestart(true, target);
    });
}

bool frmMultiUser::checkSharedFolder(const QString &folder) {
    if (!QFileInfo(folder).isDir()) {
        dialogs().message(tr("%1 does not exist.  Please select a valid location.").arg(folder),
                          tr("Path does not exist"), Dialogs::Icon::Critical);
        return false;
    }
    if (QFileInfo::exists(folder + kShareFileSuffix) || ui->copyLocal->isChecked())
        return true;
    const auto answer = dialogs().message(
        tr("A valid Brisko database was not found at %1.  Are you sure you want to save these "
           "settings?  Brisko Desk will not function without a valid database.")
            .arg(folder),
        tr("Invalid Brisko Desk Database"), Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel);
    return answer == Dialogs::Answer::Yes;
}

// Copied before the settings are written, so that a copy that fails leaves
// the program on the file it had.
void frmMultiUser::copyToShare(const QString &folder, const QString &target) {
    if (QFileInfo::exists(target)) {
        const auto answer = dialogs().message(
            tr("WARNING!  There is an Brisko database at %1.  Are you sure you want to PROCEED and "
               "overwrite the existing file?  All data will be lost in the existing file.")
                .arg(folder),
            tr("Overwrite Existing File"), Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNo);
        if (answer != Dialogs::Answer::Yes) {
            dialogs().message(tr("Stand-alone database file was not copied."),
                              tr("Multi-user Setting"), Dialogs::Icon::Information);
            return;
        }
    }
    db::closeConnection();
    DatabaseCopy::copy(session().dbPath, target);
}

void frmMultiUser::saveAndRestart(bool useShared, const QString &location) {
    Utility::RegSetString(SettingsKey::useSharedFile, useShared ? u"True"_s : u"False"_s);
    Utility::RegSetString(SettingsKey::shareFileLocation, location);
    Session &state = session();
    state.useSharedFile = useShared;
    state.shareFileLocation = location;
    dialogs().message(tr("Database settings have been changed.  Brisko will now restart."),
                      tr("Multi-User"), Dialogs::Icon::Exclamation);
    accept();
    Utility::RegSetString(SettingsKey::firstRun, u"no"_s);
    processControl().restart();
}
