#include "output/reporttemplate.h"

#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPageSize>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kTemplateError = 31001;

[[noreturn]] void fail(const QString &path, const QString &why) {
    throw BriskoError(kTemplateError,
                      QCoreApplication::translate("ReportTemplate", "The report template '%1' %2")
                          .arg(path, why));
}

QString joinedText(const QJsonValue &value) {
    if (!value.isArray())
        return value.toString();
    QStringList lines;
    for (const QJsonValue &line : value.toArray())
        lines.append(line.toString());
    return lines.join(u'\n');
}

ReportFont readFont(const QJsonObject &object) {
    return {object.value(u"family").toString(), object.value(u"size").toDouble(),
            object.value(u"bold").toBool(), object.value(u"italic").toBool()};
}

Qt::Alignment readAlignment(const QJsonObject &object, bool grows) {
    const QString horizontal = object.value(u"align").toString();
    Qt::Alignment align = horizontal == u"right"    ? Qt::AlignRight
                          : horizontal == u"center" ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
    const QString vertical = object.value(u"valign").toString(grows ? u"top"_s : u"center"_s);
    align |= vertical == u"top"      ? Qt::AlignTop
             : vertical == u"bottom" ? Qt::AlignBottom
                                     : Qt::AlignVCenter;
    return align;
}

ReportElement::Kind readElementKind(const QString &type, const QString &path) {
    static const QHash<QString, ReportElement::Kind> kinds{{u"text"_s, ReportElement::Kind::Text},
                                                           {u"field"_s, ReportElement::Kind::Field},
                                                           {u"image"_s, ReportElement::Kind::Image},
                                                           {u"line"_s, ReportElement::Kind::Line},
                                                           {u"box"_s, ReportElement::Kind::Box}};
    if (!kinds.contains(type))
        fail(path,
             QCoreApplication::translate("ReportTemplate", "has an element of unknown type '%1'.")
                 .arg(type));
    return kinds.value(type);
}

ReportElement readElement(const QJsonObject &object, const QString &path) {
    ReportElement element;
    element.kind = readElementKind(object.value(u"type").toString(), path);
    const QJsonArray rect = object.value(u"rect").toArray();
    if (rect.size() != 4)
        fail(path, QCoreApplication::translate("ReportTemplate",
                                               "has an element without its four-number rect."));
    element.rect =
        QRectF(rect[0].toDouble(), rect[1].toDouble(), rect[2].toDouble(), rect[3].toDouble());
    element.text = element.kind == ReportElement::Kind::Field ? object.value(u"field").toString()
                                                              : joinedText(object.value(u"text"));
    element.format = object.value(u"format").toString();
    element.condition = object.value(u"if").toString();
    element.grow = object.value(u"grow").toBool();
    element.collapse = object.value(u"collapse").toBool();
    element.align = readAlignment(object, element.grow);
    element.font = readFont(object.value(u"font").toObject());
    element.color = QColor(object.value(u"color").toString(u"#000000"_s));
    if (object.contains(u"fill"))
        element.fill = QColor(object.value(u"fill").toString());
    element.lineWidth = object.value(u"width").toDouble(0.25);
    return element;
}

ReportBand::Kind readBandKind(const QString &type, const QString &path) {
    static const QHash<QString, ReportBand::Kind> kinds{
        {u"reportHeader"_s, ReportBand::Kind::ReportHeader},
        {u"pageHeader"_s, ReportBand::Kind::PageHeader},
        {u"groupHeader"_s, ReportBand::Kind::GroupHeader},
        {u"detail"_s, ReportBand::Kind::Detail},
        {u"groupFooter"_s, ReportBand::Kind::GroupFooter},
        {u"reportFooter"_s, ReportBand::Kind::ReportFooter},
        {u"pageFooter"_s, ReportBand::Kind::PageFooter}};
    if (!kinds.contains(type))
        fail(path, QCoreApplication::translate("ReportTemplate", "has a band of unknown type '%1'.")
                       .arg(type));
    return kinds.value(type);
}

ReportBand readBand(const QJsonObject &object, const QString &path) {
    ReportBand band;
    band.kind = readBandKind(object.value(u"type").toString(), path);
    band.height = object.value(u"height").toDouble();
    band.condition = object.value(u"if").toString();
    for (const QJsonValue &element : object.value(u"elements").toArray())
        band.elements.append(readElement(element.toObject(), path));
    return band;
}

ReportPageSetup readPage(const QJsonObject &object) {
    ReportPageSetup page;
    const QString paper = object.value(u"paper").toString(u"A4"_s);
    page.paper = paper == u"Letter"   ? ReportPageSetup::Paper::Letter
                 : paper == u"Roll80" ? ReportPageSetup::Paper::Roll80
                                      : ReportPageSetup::Paper::A4;
    page.landscape = object.value(u"orientation").toString() == u"landscape";
    const QJsonArray margins = object.value(u"margins").toArray();
    if (margins.size() == 4) {
        page.marginLeft = margins[0].toDouble();
        page.marginTop = margins[1].toDouble();
        page.marginRight = margins[2].toDouble();
        page.marginBottom = margins[3].toDouble();
    }
    return page;
}

ReportParameter readParameter(const QJsonObject &object) {
    ReportParameter parameter;
    parameter.name = object.value(u"name").toString();
    parameter.label = object.value(u"label").toString(parameter.name);
    parameter.kind = object.value(u"type").toString() == u"text" ? ReportParameter::Kind::Text
                                                                 : ReportParameter::Kind::Date;
    parameter.defaultValue = object.value(u"default").toString();
    return parameter;
}

} // namespace

QSizeF ReportPageSetup::size() const {
    if (paper == Paper::Roll80)
        return {80, 0};
    const QSizeF portrait = QPageSize(paper == Paper::Letter ? QPageSize::Letter : QPageSize::A4)
                                .size(QPageSize::Millimeter);
    return landscape ? portrait.transposed() : portrait;
}

ReportTemplate ReportTemplate::load(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path, QCoreApplication::translate("ReportTemplate", "could not be opened: %1")
                       .arg(file.errorString()));
    return parse(file.readAll(), path);
}

ReportTemplate ReportTemplate::parse(const QByteArray &json, const QString &path) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        fail(path, QCoreApplication::translate("ReportTemplate", "is not valid (%1 at offset %2).")
                       .arg(error.errorString())
                       .arg(error.offset));
    const QJsonObject root = document.object();
    ReportTemplate report;
    report.name = root.value(u"name").toString();
    if (report.name.isEmpty())
        fail(path, QCoreApplication::translate("ReportTemplate", "has no name."));
    report.page = readPage(root.value(u"page").toObject());
    const ReportFont font = readFont(root.value(u"font").toObject());
    if (!font.family.isEmpty())
        report.font.family = font.family;
    if (font.size > 0)
        report.font.size = font.size;
    for (const QJsonValue &parameter : root.value(u"parameters").toArray())
        report.parameters.append(readParameter(parameter.toObject()));
    for (const QJsonValue &set : root.value(u"data").toArray()) {
        const QJsonObject object = set.toObject();
        report.dataSets.append(
            {object.value(u"name").toString(), joinedText(object.value(u"sql"))});
    }
    const QJsonObject detail = root.value(u"detail").toObject();
    report.detailData = detail.value(u"data").toString();
    report.groupBy = detail.value(u"groupBy").toString();
    for (const QJsonValue &band : root.value(u"bands").toArray())
        report.bands.append(readBand(band.toObject(), path));
    return report;
}

QList<const ReportBand *> ReportTemplate::bandsOf(ReportBand::Kind kind) const {
    QList<const ReportBand *> result;
    for (const ReportBand &band : bands) {
        if (band.kind == kind)
            result.append(&band);
    }
    return result;
}
