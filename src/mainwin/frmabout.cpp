#include "mainwin/frmabout.h"
#include "ui_frmAbout.h"

#include "version.h"

#include <QIcon>

frmAbout::frmAbout(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmAbout>()) {
    ui->setupUi(this);
    ui->lblIcon->setPixmap(QIcon(QStringLiteral(":/icons/brisko.png")).pixmap(64, 64));
    ui->lblVersion->setText(
        tr("Version %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
}

frmAbout::~frmAbout() = default;
