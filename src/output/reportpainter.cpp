#include "output/reportpainter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <vector>

namespace {

// Millimetres of the layout to the device's dots.
class DeviceScale {
public:
    explicit DeviceScale(const QPaintDevice &device)
        : m_x(device.logicalDpiX() / ReportText::kMillimetresPerInch)
        , m_y(device.logicalDpiY() / ReportText::kMillimetresPerInch) {}

    QRectF rect(const QRectF &millimetres) const {
        return {millimetres.x() * m_x, millimetres.y() * m_y, millimetres.width() * m_x,
                millimetres.height() * m_y};
    }
    double length(double millimetres) const { return millimetres * m_x; }

private:
    double m_x;
    double m_y;
};

// Metrics of the fonts met on a page, on the device drawn to.
class DeviceMetrics {
public:
    explicit DeviceMetrics(QPaintDevice *device)
        : m_device(device) {}

    const QFontMetricsF &of(const QFont &font) {
        for (const auto &[known, metrics] : m_known) {
            if (known == font)
                return metrics;
        }
        return m_known.emplace_back(font, QFontMetricsF(font, m_device)).second;
    }

private:
    QPaintDevice *m_device;
    std::vector<std::pair<QFont, QFontMetricsF>> m_known;
};

void paintText(QPainter &painter, DeviceMetrics &metrics, const ReportItem &item,
               const QRectF &rect) {
    if (painter.font() != item.font)
        painter.setFont(item.font);
    painter.setPen(item.color);
    if (item.wrap) {
        painter.save();
        painter.setClipRect(rect);
        painter.drawText(rect, int(item.align) | Qt::TextWordWrap, item.text);
        painter.restore();
        return;
    }
    // A text too long for its place is cut short with an ellipsis, never run on.
    const QFontMetricsF &fontMetrics = metrics.of(item.font);
    const bool fits = fontMetrics.horizontalAdvance(item.text) <= rect.width();
    painter.drawText(rect, int(item.align) | Qt::TextSingleLine,
                     fits ? item.text
                          : fontMetrics.elidedText(item.text, Qt::ElideRight, rect.width()));
}

void paintImage(QPainter &painter, const ReportItem &item, const QRectF &rect) {
    QSizeF size = item.image.size();
    size.scale(rect.size(), Qt::KeepAspectRatio);
    QRectF target(rect.topLeft(), size);
    if (item.align & Qt::AlignRight)
        target.moveRight(rect.right());
    else if (item.align & Qt::AlignHCenter)
        target.moveLeft(rect.center().x() - size.width() / 2);
    painter.drawImage(target, item.image);
}

void paintShape(QPainter &painter, const ReportItem &item, const QRectF &rect, double penWidth) {
    QPen pen(item.color, penWidth);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(item.lineWidth > 0 ? pen : QPen(Qt::NoPen));
    if (item.kind == ReportItem::Kind::Line) {
        painter.drawLine(rect.topLeft(), rect.bottomRight());
        return;
    }
    painter.setBrush(item.fill.isValid() ? QBrush(item.fill) : QBrush(Qt::NoBrush));
    painter.drawRect(rect);
}

QPageLayout paperOf(const ReportPage &page) {
    return QPageLayout(
        QPageSize(page.size, QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
        QPageLayout::Portrait, QMarginsF());
}

} // namespace

namespace ReportPainter {

void paintPage(QPainter &painter, const ReportPage &page) {
    const DeviceScale scale(*painter.device());
    DeviceMetrics metrics(painter.device());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const ReportItem &item : page.items) {
        const QRectF rect = scale.rect(item.rect);
        switch (item.kind) {
        case ReportItem::Kind::Text:
            paintText(painter, metrics, item, rect);
            break;
        case ReportItem::Kind::Image:
            paintImage(painter, item, rect);
            break;
        case ReportItem::Kind::Line:
        case ReportItem::Kind::Box:
            paintShape(painter, item, rect, scale.length(item.lineWidth));
            break;
        }
    }
}

void paintReport(QPagedPaintDevice &device, const RenderedReport &report) {
    if (report.pages.isEmpty())
        return;
    device.setPageLayout(paperOf(report.pages.first()));
    QPainter painter(&device);
    for (qsizetype index = 0; index < report.pages.size(); ++index) {
        if (index > 0) {
            device.setPageLayout(paperOf(report.pages.at(index)));
            device.newPage();
        }
        paintPage(painter, report.pages.at(index));
    }
}

QByteArray toPdf(const RenderedReport &report) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(report.title);
        writer.setCreator(QStringLiteral("Brisko"));
        paintReport(writer, report);
    }
    return bytes;
}

} // namespace ReportPainter
