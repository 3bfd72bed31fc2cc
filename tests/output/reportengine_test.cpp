// The template format and its renderer, on small templates of the tests' own.
#include "reportoutputtest.h"

#include "output/reportpainter.h"
#include "output/reportpreview.h"
#include "output/reportrunner.h"
#include "output/reporttemplate.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReportEngineTest : public ReportOutputTest {
protected:
    // Writes a template whose detail band lists the customers named like `:name`.
    QString customerList(const QString &detailElements, const QString &paper = u"A4"_s) {
        const QString path = tempPath(u"Customers.mrt"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(uR"({
  "name": "Customers",
  "page": {"paper": "%1", "margins": [10, 10, 10, 10]},
  "parameters": [{"name": "name", "label": "Name:", "type": "text", "default": "%%"}],
  "data": [{"name": "rows", "sql": "SELECT payeeName, ':notAParameter' AS literal FROM tblPayee WHERE payeeName LIKE :name ORDER BY payeeID"}],
  "detail": {"data": "rows"},
  "bands": [
    {"type": "pageHeader", "height": 6, "elements": [{"type": "text", "rect": [0, 0, 60, 6], "text": "Customer list"}]},
    {"type": "detail", "height": 6, "elements": [%2]}
  ]
})"_s.arg(paper, detailElements)
                       .toUtf8());
        return path;
    }

    std::optional<RenderedReport> render(const QString &path) {
        return ReportRunner().render(path, false, u"Customers"_s);
    }
};

TEST_F(ReportEngineTest, ParametersAreBoundNeverSpliced) {
    addCustomer(u"O'Brien 100% _sure_"_s);
    addCustomer(u"Olsen"_s);
    delivery().answers = {{u"name"_s, u"o'brien%"_s}};
    const auto report = render(customerList(
        uR"({"type": "text", "rect": [0, 0, 150, 6], "text": "{payeeName} {literal}"})"_s));
    ASSERT_TRUE(report);
    const QString text = pdfToText(ReportPainter::toPdf(*report));
    EXPECT_TRUE(text.contains(u"O'Brien 100% _sure_ :notAParameter"_s)) << text.toStdString();
    EXPECT_FALSE(text.contains(u"Olsen"_s));
}

TEST_F(ReportEngineTest, OnlyOneSelectMayRead) {
    const QString path = tempPath(u"Bad.mrt"_s);
    for (const QString &sql : {u"DELETE FROM tblPayee"_s, u"SELECT 1; DELETE FROM tblPayee"_s}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(uR"({"name": "Bad", "data": [{"name": "x", "sql": "%1"}]})"_s.arg(sql).toUtf8());
        file.close();
        const BriskoError error = errorOf([&] { render(path); });
        EXPECT_TRUE(error.description().startsWith(u"Data set 'x': "_s)) << sql.toStdString();
    }
    EXPECT_EQ(ReportRunner().getReportName(path), u"Bad"_s);
}

TEST_F(ReportEngineTest, LongTextWrapsWhereItMayGrowAndIsCutShortWhereItMayNot) {
    const QString name = u"Fairweather Landscaping and Garden Supply of the Greater Seacoast"_s;
    addCustomer(name);
    const auto grown = render(customerList(
        uR"({"type": "text", "rect": [0, 0, 40, 6], "text": "{payeeName}", "grow": true},
            {"type": "text", "rect": [0, 6, 40, 6], "text": "below"})"_s));
    const auto cut = render(
        customerList(uR"({"type": "text", "rect": [0, 0, 40, 6], "text": "{payeeName}"})"_s));
    const QString grownText = pdfToText(ReportPainter::toPdf(*grown)).simplified();
    EXPECT_TRUE(grownText.contains(name)) << grownText.toStdString();
    const ReportItem &below = grown->pages[0].items.last();
    EXPECT_EQ(below.text, u"below"_s);
    EXPECT_GT(below.rect.top(), grown->pages[0].items[1].rect.bottom() - 0.01);

    const QString cutText = pdfToText(ReportPainter::toPdf(*cut));
    EXPECT_TRUE(cutText.contains(u"…"_s));
    EXPECT_FALSE(cutText.contains(u"Seacoast"_s));
}

// Rows that do not fit start a page under the repeated header; the preview
// turns those pages and saves the PDF where the user chose.
TEST_F(ReportEngineTest, RowsBreakIntoPagesThatThePreviewTurnsAndSaves) {
    db::Transaction transaction;
    for (int i = 0; i < 100; ++i)
        addCustomer(u"Customer %1"_s.arg(i));
    transaction.commit();
    const auto report = render(
        customerList(uR"({"type": "text", "rect": [0, 0, 60, 6], "text": "{payeeName}"})"_s));
    const int perPage = int((297 - 20 - 6) / 6); // paper less margins and page header
    ASSERT_EQ(report->pages.size(), (100 + perPage - 1) / perPage);
    for (const ReportPage &page : report->pages) {
        EXPECT_EQ(page.items.first().text, u"Customer list"_s);
        EXPECT_LE(page.items.last().rect.bottom(), 297 - 10 + 0.01);
    }

    ReportPreview preview(*report);
    preview.show();
    auto *next = preview.findChild<QPushButton *>(u"cmdNext"_s);
    for (qsizetype page = 1; page < report->pages.size(); ++page)
        next->click();
    EXPECT_EQ(preview.findChild<QLabel *>(u"lblPage"_s)->text(),
              u"Page %1 of %1"_s.arg(report->pages.size()));
    EXPECT_FALSE(next->isEnabled());

    const QString saved = tempPath(u"customers.pdf"_s);
    boxes().texts.enqueue(saved);
    preview.findChild<QPushButton *>(u"cmdSavePdf"_s)->click();
    ASSERT_EQ(boxes().shown.size(), 1);
    EXPECT_EQ(boxes().shown[0].request.fileName, u"Customers.pdf"_s);
    QFile file(saved);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdfToText(file.readAll()).contains(u"Customer 99"_s));
    QTest::keyClick(&preview, Qt::Key_Escape);
    EXPECT_FALSE(preview.isVisible());
}
