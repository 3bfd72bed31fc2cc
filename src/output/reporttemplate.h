#pragma once

#include <QColor>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

// A report template (.mrt) as read from its file: the page, the questions
// asked before rendering, the data sets and the bands. reports/FORMAT.md
// describes the file. All lengths are millimetres, font sizes points.

struct ReportFont {
    QString family;
    double size = 0; // 0: the report's own size
    bool bold = false;
    bool italic = false;
};

struct ReportElement {
    enum class Kind { Text, Field, Image, Line, Box };
    Kind kind = Kind::Text;
    QRectF rect;
    QString text;      // Text: may hold {placeholders}; Field: the value's name
    QString format;    // "money", "amount", "number:#,##0", "date:mm/dd/yyyy"
    QString condition; // empty, or a flag or value name, "!" in front to negate
    Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
    ReportFont font;
    QColor color = Qt::black;
    QColor fill; // Box only; invalid for none
    double lineWidth = 0.25;
    bool grow = false;     // wraps and pushes what lies below it down
    bool collapse = false; // hidden, it gives its height back
};

struct ReportBand {
    enum class Kind {
        ReportHeader,
        PageHeader,
        GroupHeader,
        Detail,
        GroupFooter,
        ReportFooter,
        PageFooter
    };
    Kind kind = Kind::Detail;
    double height = 0;
    QString condition;
    QList<ReportElement> elements;
};

struct ReportDataSet {
    QString name;
    QString sql;
};

struct ReportParameter {
    enum class Kind { Date, Text };
    QString name;
    QString label;
    Kind kind = Kind::Date;
    QString defaultValue; // "today", "monthStart", "monthEnd", "yearStart" or a fixed text
};

struct ReportPageSetup {
    enum class Paper { A4, Letter, Roll80 };
    Paper paper = Paper::A4;
    bool landscape = false;
    double marginLeft = 15, marginTop = 15, marginRight = 15, marginBottom = 15;

    // The paper's size; a roll's height is its content's and is left at 0 here.
    QSizeF size() const;
    bool isRoll() const { return paper == Paper::Roll80; }
};

class ReportTemplate {
public:
    QString name;
    ReportPageSetup page;
    ReportFont font{QStringLiteral("DejaVu Sans"), 9, false, false};
    QList<ReportParameter> parameters;
    QList<ReportDataSet> dataSets;
    QString detailData; // the data set the detail band runs over
    QString groupBy;    // the column whose change starts a new group
    QList<ReportBand> bands;

    // Reads a template file; raises BriskoError when it cannot be read or
    // does not describe a report.
    static ReportTemplate load(const QString &path);
    static ReportTemplate parse(const QByteArray &json, const QString &path);

    QList<const ReportBand *> bandsOf(ReportBand::Kind kind) const;
};
