#include "output/reportlayout.h"

#include "output/reportdata.h"
#include "output/reporttemplate.h"

#include <QFontMetricsF>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Text is measured as the PDF writer sets it, so that what wraps on paper
// wraps the same way in the preview.
constexpr double kMeasureDpi = 1200;

const QImage &measuringDevice() {
    static const QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        const int dotsPerMetre = qRound(kMeasureDpi / ReportText::kMillimetresPerInch * 1000);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        return image;
    }();
    return device;
}

constexpr double toDots(double millimetres) {
    return millimetres * kMeasureDpi / ReportText::kMillimetresPerInch;
}
constexpr double toMillimetres(double dots) {
    return dots * ReportText::kMillimetresPerInch / kMeasureDpi;
}

QFont fontOf(const ReportFont &wanted, const ReportFont &reportFont) {
    QFont font(wanted.family.isEmpty() ? reportFont.family : wanted.family);
    font.setPointSizeF(wanted.size > 0 ? wanted.size : reportFont.size);
    font.setBold(wanted.bold);
    font.setItalic(wanted.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool isText(const ReportElement &element) {
    return element.kind == ReportElement::Kind::Text || element.kind == ReportElement::Kind::Field;
}

// One element of a band as it will stand: its item, or nothing when hidden,
// and how much taller or shorter than drawn in the template it came out.
struct Placed {
    const ReportElement *element = nullptr;
    std::optional<ReportItem> item;
    double height = 0;
    double shift = 0;
};

struct PlacedBand {
    QList<ReportItem> items;
    double height = 0;
};

class Flow {
public:
    Flow(const ReportTemplate &report, const ReportData &data)
        : m_report(report)
        , m_data(data)
        , m_paper(report.page.size()) {}

    QList<ReportPage> run();

private:
    PlacedBand place(const ReportBand &band, const ReportScope &scope);
    Placed placeElement(const ReportElement &element, const ReportScope &scope);
    void emitBand(const ReportBand &band, const ReportScope &scope, double left);
    void emitBands(ReportBand::Kind kind, const ReportScope &scope);
    void startPage(const ReportScope &scope);
    double footerHeight();
    void addPageFooters();
    void runDetail();
    const QImage &image(const QString &path);

    const ReportTemplate &m_report;
    const ReportData &m_data;
    QSizeF m_paper;
    QList<ReportPage> m_pages;
    qsizetype m_current = 0; // the page bands are placed on
    double m_y = 0;
    double m_pageBodyStart = 0;
    double m_bottom = 0;
    QHash<QString, QImage> m_images;
};

const QImage &Flow::image(const QString &path) {
    auto found = m_images.find(path);
    if (found == m_images.end())
        found = m_images.insert(path, path.isEmpty() ? QImage() : QImage(path));
    return *found;
}

Placed Flow::placeElement(const ReportElement &element, const ReportScope &scope) {
    Placed placed{&element, std::nullopt, element.rect.height(), 0};
    const bool shown = ReportValues::holds(m_data, scope, element.condition);
    ReportItem item;
    item.rect = element.rect;
    item.color = element.color;
    item.fill = element.fill;
    item.align = element.align;
    item.lineWidth = element.lineWidth;
    item.font = fontOf(element.font, m_report.font);
    switch (element.kind) {
    case ReportElement::Kind::Text:
        item.text = ReportValues::expand(m_data, scope, element.text);
        break;
    case ReportElement::Kind::Field:
        item.text = ReportValues::format(ReportValues::lookup(m_data, scope, element.text),
                                         element.format, m_data.currencySymbol);
        break;
    case ReportElement::Kind::Image:
        item.kind = ReportItem::Kind::Image;
        item.image = image(ReportValues::lookup(m_data, scope, element.text).toString());
        break;
    case ReportElement::Kind::Line:
        item.kind = ReportItem::Kind::Line;
        break;
    case ReportElement::Kind::Box:
        item.kind = ReportItem::Kind::Box;
        break;
    }
    const bool empty = (isText(element) && item.text.isEmpty()) ||
                       (item.kind == ReportItem::Kind::Image && item.image.isNull());
    if (!shown || (empty && element.collapse)) {
        if (element.collapse)
            placed.height = 0;
        return placed;
    }
    if (isText(element)) {
        item.wrap = element.grow || item.text.contains(u'\n');
        if (element.grow) {
            placed.height =
                std::max(element.rect.height(),
                         ReportText::wrappedHeight(item.font, item.text, element.rect.width()));
            item.rect.setHeight(placed.height);
        }
    }
    placed.item = item;
    return placed;
}

// Elements keep their places, except that what grows or collapses moves the
// elements below it that share its columns: each follows the nearest such
// element above it.
PlacedBand Flow::place(const ReportBand &band, const ReportScope &scope) {
    QList<Placed> placed;
    for (const ReportElement &element : band.elements)
        placed.append(placeElement(element, scope));
    QList<Placed *> byTop;
    for (Placed &one : placed)
        byTop.append(&one);
    std::stable_sort(byTop.begin(), byTop.end(), [](const Placed *a, const Placed *b) {
        return a->element->rect.top() < b->element->rect.top();
    });
    double oldBottom = 0;
    double newBottom = 0;
    for (qsizetype i = 0; i < byTop.size(); ++i) {
        Placed &current = *byTop[i];
        const QRectF &rect = current.element->rect;
        double nearestBottom = -1;
        for (qsizetype j = 0; j < i; ++j) {
            const Placed &above = *byTop[j];
            const QRectF &aboveRect = above.element->rect;
            const bool sharesColumns =
                aboveRect.left() < rect.right() && rect.left() < aboveRect.right();
            if (!sharesColumns || aboveRect.bottom() > rect.top() + 0.01)
                continue;
            const double follow = above.shift + above.height - aboveRect.height();
            if (aboveRect.bottom() > nearestBottom + 0.01) {
                nearestBottom = aboveRect.bottom();
                current.shift = follow;
            } else if (aboveRect.bottom() > nearestBottom - 0.01) {
                current.shift = std::max(current.shift, follow);
            }
        }
        if (current.item)
            current.item->rect.translate(0, current.shift);
        oldBottom = std::max(oldBottom, rect.bottom());
        newBottom = std::max(newBottom, rect.top() + current.shift + current.height);
    }
    PlacedBand result;
    result.height = std::max(0.0, band.height + newBottom - oldBottom);
    for (const Placed &one : placed) {
        if (one.item)
            result.items.append(*one.item);
    }
    return result;
}

void Flow::emitBand(const ReportBand &band, const ReportScope &scope, double left) {
    if (!ReportValues::holds(m_data, scope, band.condition))
        return;
    PlacedBand placed = place(band, scope);
    const bool pageHasBody = m_y > m_pageBodyStart + 0.01;
    if (!m_report.page.isRoll() && band.kind != ReportBand::Kind::PageHeader &&
        band.kind != ReportBand::Kind::PageFooter && pageHasBody &&
        m_y + placed.height > m_bottom) {
        startPage(scope);
    }
    for (ReportItem &item : placed.items) {
        item.rect.translate(left, m_y);
        m_pages[m_current].items.append(item);
    }
    m_y += placed.height;
}

void Flow::emitBands(ReportBand::Kind kind, const ReportScope &scope) {
    for (const ReportBand *band : m_report.bandsOf(kind))
        emitBand(*band, scope, m_report.page.marginLeft);
}

void Flow::startPage(const ReportScope &scope) {
    m_pages.append(ReportPage{m_paper, {}});
    m_current = m_pages.size() - 1;
    m_y = m_report.page.marginTop;
    emitBands(ReportBand::Kind::PageHeader, scope);
    m_pageBodyStart = m_y;
}

double Flow::footerHeight() {
    double height = 0;
    const ReportScope scope{nullptr, {}, 1, 1};
    for (const ReportBand *band : m_report.bandsOf(ReportBand::Kind::PageFooter))
        height += place(*band, scope).height;
    return height;
}

void Flow::runDetail() {
    const db::Snapshot rows = m_data.sets.value(m_report.detailData);
    QList<const db::Row *> all;
    for (const db::Row &row : rows)
        all.append(&row);
    const QList<const ReportBand *> details = m_report.bandsOf(ReportBand::Kind::Detail);
    QList<const db::Row *> group;
    auto closeGroup = [&] {
        if (!group.isEmpty())
            emitBands(ReportBand::Kind::GroupFooter, ReportScope{group.last(), group});
        group.clear();
    };
    for (const db::Row *row : all) {
        const bool grouped = !m_report.groupBy.isEmpty();
        if (grouped && !group.isEmpty() &&
            group.last()->value(m_report.groupBy) != row->value(m_report.groupBy)) {
            closeGroup();
        }
        if (grouped && group.isEmpty())
            emitBands(ReportBand::Kind::GroupHeader, ReportScope{row, {row}});
        group.append(row);
        for (const ReportBand *band : details)
            emitBand(*band, ReportScope{row, {row}}, m_report.page.marginLeft);
    }
    if (!m_report.groupBy.isEmpty())
        closeGroup();
    emitBands(ReportBand::Kind::ReportFooter,
              ReportScope{all.isEmpty() ? nullptr : all.last(), all});
}

void Flow::addPageFooters() {
    const double reserved = footerHeight();
    const int pageCount = int(m_pages.size());
    for (int index = 0; index < pageCount; ++index) {
        m_current = index;
        if (!m_report.page.isRoll())
            m_y = m_paper.height() - m_report.page.marginBottom - reserved;
        emitBands(ReportBand::Kind::PageFooter, ReportScope{nullptr, {}, index + 1, pageCount});
    }
}

QList<ReportPage> Flow::run() {
    const double reserved = footerHeight();
    m_bottom = m_paper.height() - m_report.page.marginBottom - reserved;
    m_pages.append(ReportPage{m_paper, {}});
    m_y = m_report.page.marginTop;
    emitBands(ReportBand::Kind::ReportHeader, {});
    emitBands(ReportBand::Kind::PageHeader, {});
    m_pageBodyStart = m_y;
    runDetail();
    if (m_report.page.isRoll())
        m_pages.last().size.setHeight(m_y + reserved + m_report.page.marginBottom);
    addPageFooters();
    return m_pages;
}

} // namespace

QList<ReportPage> layoutReport(const ReportTemplate &report, const ReportData &data) {
    return Flow(report, data).run();
}

namespace ReportText {

double wrappedHeight(const QFont &font, const QString &text, double width) {
    const QFontMetricsF metrics(font, &measuringDevice());
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, toDots(width), 1e7),
                                               Qt::AlignLeft | Qt::TextWordWrap, text);
    // A little room, so that a screen's rounding never pushes the last line out.
    return toMillimetres(bounds.height()) * 1.03 + 0.3;
}

} // namespace ReportText
