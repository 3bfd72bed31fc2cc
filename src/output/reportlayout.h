#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

class ReportData;
class ReportTemplate;

// One mark on a laid-out page, placed in millimetres from the paper's corner.
struct ReportItem {
    enum class Kind { Text, Image, Line, Box };
    Kind kind = Kind::Text;
    QRectF rect;
    QString text;
    QFont font; // its point size is the printed size
    QColor color;
    QColor fill;
    Qt::Alignment align;
    bool wrap = false;
    double lineWidth = 0;
    QImage image;
};

struct ReportPage {
    QSizeF size; // millimetres
    QList<ReportItem> items;
};

// A report ready for any paged device.
struct RenderedReport {
    QString title;
    QList<ReportPage> pages;
};

// Flows the bands of `report` over pages, filled from `data`: report header
// once, page header at the top of each page, a detail band per row with the
// group bands around each group, report footer, and page footer at the foot
// of each page. A band that does not fit starts a new page; a roll's single
// page is as long as its content.
QList<ReportPage> layoutReport(const ReportTemplate &report, const ReportData &data);

namespace ReportText {
// The height a text needs when wrapped to `width`, both in millimetres.
double wrappedHeight(const QFont &font, const QString &text, double width);
// Printer points to the millimetres of the layout.
constexpr double kMillimetresPerInch = 25.4;
} // namespace ReportText
