#include "output/reportpreview.h"

#include "output/reportpainter.h"
#include "platform/dialogs.h"

#include <QComboBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double kScreenDpi = 96;
constexpr int kZoomPercents[] = {50, 75, 100, 125, 150, 200};
constexpr int kDefaultZoomIndex = 2;

} // namespace

ReportPreview::ReportPreview(RenderedReport report, QWidget *parent)
    : QDialog(parent)
    , m_report(std::move(report)) {
    setObjectName(u"ReportPreview"_s);
    setWindowTitle(m_report.title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);

    auto *tools = new QHBoxLayout;
    m_previous = addButton(u"cmdPrevious"_s, tr("< Pre&vious"));
    m_pageLabel = new QLabel(this);
    m_pageLabel->setObjectName(u"lblPage"_s);
    m_next = addButton(u"cmdNext"_s, tr("&Next >"));
    m_zoom = new QComboBox(this);
    m_zoom->setObjectName(u"cboZoom"_s);
    auto *zoomLabel = new QLabel(tr("&Zoom:"), this);
    zoomLabel->setBuddy(m_zoom);
    for (int percent : kZoomPercents)
        m_zoom->addItem(tr("%1%").arg(percent), percent);
    m_zoom->setCurrentIndex(kDefaultZoomIndex);
    QPushButton *print = addButton(u"cmdPrint"_s, tr("&Print..."));
    QPushButton *save = addButton(u"cmdSavePdf"_s, tr("Save as P&DF..."));
    QPushButton *close = addButton(u"cmdClose"_s, tr("&Close"));
    for (QWidget *widget : std::initializer_list<QWidget *>{m_previous, m_pageLabel, m_next})
        tools->addWidget(widget);
    tools->addSpacing(12);
    tools->addWidget(zoomLabel);
    tools->addWidget(m_zoom);
    tools->addStretch();
    for (QWidget *widget : std::initializer_list<QWidget *>{print, save, close})
        tools->addWidget(widget);

    m_pageView = new QLabel;
    m_pageView->setObjectName(u"pageView"_s);
    m_pageView->setAccessibleName(tr("Page"));
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(u"pageScroll"_s);
    m_scroll->setAccessibleName(tr("Page"));
    m_scroll->setWidget(m_pageView);
    m_scroll->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_scroll->setBackgroundRole(QPalette::Dark);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(tools);
    layout->addWidget(m_scroll);

    connect(m_previous, &QPushButton::clicked, this, [this] { showPage(m_page - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { showPage(m_page + 1); });
    connect(m_zoom, &QComboBox::currentIndexChanged, this, &ReportPreview::redraw);
    connect(print, &QPushButton::clicked, this, &ReportPreview::printReport);
    connect(save, &QPushButton::clicked, this, &ReportPreview::saveAsPdf);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    // A page and a half of room, but never more than the screen has.
    resize(QSize(900, 1000).boundedTo(screen()->availableGeometry().size() * 9 / 10));
    showPage(0);
}

QPushButton *ReportPreview::addButton(const QString &name, const QString &text) {
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(QString(text).remove(u'&').remove(u"..."_s).trimmed());
    button->setAutoDefault(false);
    return button;
}

void ReportPreview::showPage(int index) {
    m_page = std::clamp(index, 0, std::max(0, pageCount() - 1));
    m_pageLabel->setText(tr("Page %1 of %2").arg(m_page + 1).arg(pageCount()));
    m_pageLabel->setAccessibleName(m_pageLabel->text());
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < pageCount());
    redraw();
}

double ReportPreview::zoom() const {
    return m_zoom->currentData().toInt() / 100.0;
}

QImage ReportPreview::pageImage(int index, double zoom) const {
    const ReportPage &page = m_report.pages.at(index);
    const double dpi = kScreenDpi * zoom * devicePixelRatioF();
    const double dotsPerMillimetre = dpi / ReportText::kMillimetresPerInch;
    QImage image(qCeil(page.size.width() * dotsPerMillimetre),
                 qCeil(page.size.height() * dotsPerMillimetre), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerMillimetre * 1000));
    image.setDotsPerMeterY(qRound(dotsPerMillimetre * 1000));
    image.fill(Qt::white);
    QPainter painter(&image);
    ReportPainter::paintPage(painter, page);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

void ReportPreview::redraw() {
    if (m_report.pages.isEmpty())
        return;
    m_pageView->setPixmap(QPixmap::fromImage(pageImage(m_page, zoom())));
    m_pageView->adjustSize();
    m_scroll->verticalScrollBar()->setValue(0);
}

void ReportPreview::printReport() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_report.title);
    printer.setFullPage(true);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        ReportPainter::paintReport(printer, m_report);
}

void ReportPreview::saveAsPdf() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = dialogs().saveFile(
        {tr("Save as PDF"), documents, m_report.title + u".pdf"_s, tr("PDF Files (*.pdf)")});
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ReportPainter::toPdf(m_report)) < 0) {
        dialogs().message(tr("The file could not be saved:  ") + file.errorString(), tr("Error"),
                          Dialogs::Icon::Critical);
    }
}
