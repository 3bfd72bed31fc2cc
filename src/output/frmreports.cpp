#include "output/frmreports.h"
#include "ui_frmReports.h"

#include "output/reportrunner.h"
#include "platform/briskoerror.h"
#include "platform/paths.h"
#include "platform/waitcursor.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPathNotFound = 76;

} // namespace

// The list only shows what exists; "Run Report" has nothing to run yet, the
// ledgers have their own tools in the main window.
frmReports::frmReports(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmReports>()) {
    ui->setupUi(this);
    connect(ui->cmdClose, &QPushButton::clicked, this, &frmReports::accept);
}

frmReports::~frmReports() = default;

void frmReports::load() {
    runCommand(tr("An error has occured:  "), tr("Load Reports"), [this] { loadReports(); });
}

// Every template's name, in the order of the file names. A broken template
// ends the list where it stands.
void frmReports::loadReports() {
    ReportRunner runner;
    const QDir folder(Paths::resourceFolder() + u"/reports"_s);
    if (!folder.exists())
        throw BriskoError(kPathNotFound, tr("Path not found"));
    const WaitCursor wait;
    const QStringList files =
        folder.entryList({u"*.mrt"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString &file : files)
        ui->reports->addItem(runner.getReportName(folder.filePath(file)));
}
