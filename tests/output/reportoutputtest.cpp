#include "reportoutputtest.h"

#include "app/company.h"
#include "output/reportpainter.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>

using namespace Qt::Literals::StringLiterals;

namespace {

// Runs a poppler tool on the PDF and gives what it printed.
QString runOnPdf(const QString &tool, QStringList arguments, const QByteArray &pdf) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(pdf);
    file.close();
    arguments.replaceInStrings(u"%pdf"_s, file.fileName());
    QProcess process;
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished(30000)) << tool.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

bool ReportOutputTest::RecordingDelivery::askParameters(const QString &reportName,
                                                        const QList<ReportParameter> &,
                                                        QHash<QString, QVariant> &values) {
    asked.append(reportName);
    values.insert(answers);
    return !cancel;
}

void ReportOutputTest::RecordingDelivery::toPrinter(const RenderedReport &report) {
    delivered.append({Delivered::Where::Printer, report, {}});
}

void ReportOutputTest::RecordingDelivery::toScreen(const RenderedReport &report) {
    delivered.append({Delivered::Where::Screen, report, {}});
}

void ReportOutputTest::RecordingDelivery::toMail(const MailMessage &message) {
    delivered.append({Delivered::Where::Mail, {}, message});
}

void ReportOutputTest::SetUp() {
    BriskoTest::SetUp();
    auto recording = std::make_unique<RecordingDelivery>();
    m_delivery = recording.get();
    m_previous = installReportDelivery(std::move(recording));
    db::execute(u"UPDATE tblSystem SET companyName = 'Harbor Lane Hardware', address1 = "
                "'12 Harbor Lane', city = 'Portsmouth', state = 'NH', zip = '03801', "
                "phone = '603-555-0147', tagline = 'Tools that last'"_s);
    modMain::loadCompanyInfo();
}

void ReportOutputTest::TearDown() {
    installReportDelivery(std::move(m_previous));
    BriskoTest::TearDown();
}

QStringList ReportOutputTest::deliveries() const {
    QStringList out;
    for (const Delivered &each : m_delivery->delivered) {
        out.append(each.where == Delivered::Where::Printer  ? u"printer "_s + each.report.title
                   : each.where == Delivered::Where::Screen ? u"screen "_s + each.report.title
                                                            : u"mail "_s + each.mail.to);
    }
    return out;
}

qint32 ReportOutputTest::addCustomer(const QString &name, const QString &email) {
    return qint32(db::insertReturningKey(
        u"INSERT INTO tblPayee (payeeName, address1, address2, city, state, zip, phone, email) "
        "VALUES (?, '48 Elm Street', '', 'Dover', 'NH', '03820', '603-555-0199', ?) "
        "RETURNING payeeID"_s,
        {name, email}));
}

qint32 ReportOutputTest::addProductReceipt(const QString &number, const QDateTime &date,
                                           qint32 payeeID, const QList<Line> &lines,
                                           qint16 status) {
    db::Transaction transaction;
    Receipt receipt;
    receipt.receiptNumber = number;
    receipt.receiptDate = date;
    receipt.payeeID = payeeID;
    receipt.status = status;
    receipt.receivedBy = u"Ann"_s;
    receipt.receiptType = Receipt::ProductReceipt;
    receipt.paymentType = 2;
    receipt.checkNumber = u"1042"_s;
    for (const Line &line : lines)
        receipt.amountDue += Currency::fromDouble(line.price) * line.quantity;
    receipt.amountTax = Currency::fromDouble(receipt.amountDue.toDouble() * 0.05);
    receipt.amountReceived = receipt.amountDue + receipt.amountTax;
    receipt.writeReceipt();
    for (const Line &line : lines) {
        const auto productID = db::insertReturningKey(
            u"INSERT INTO tblProduct (productName, productSKU, cost, productStatus, productDesc) "
            "VALUES (?, ?, 0, 1, '') RETURNING productID"_s,
            {line.description, line.sku});
        Receipt().writeReceiptProducts(receipt.receiptID, qint32(productID), line.quantity,
                                       Currency::fromDouble(line.price), line.description,
                                       line.extDesc);
    }
    transaction.commit();
    return receipt.receiptID;
}

QByteArray ReportOutputTest::deliveredPdf() {
    if (delivery().delivered.isEmpty()) {
        ADD_FAILURE() << "nothing was delivered";
        return {};
    }
    const Delivered &last = delivery().delivered.last();
    if (last.where == Delivered::Where::Mail)
        return last.mail.attachments.value(0).data;
    return ReportPainter::toPdf(last.report);
}

QString ReportOutputTest::deliveredText() {
    return pdfToText(deliveredPdf());
}

QString ReportOutputTest::pdfToText(const QByteArray &pdf) {
    return runOnPdf(u"pdftotext"_s, {u"-layout"_s, u"%pdf"_s, u"-"_s}, pdf);
}

QStringList ReportOutputTest::pdfImages(const QByteArray &pdf) {
    QStringList lines =
        runOnPdf(u"pdfimages"_s, {u"-list"_s, u"%pdf"_s}, pdf).split(u'\n', Qt::SkipEmptyParts);
    return lines.mid(2); // past the heading and its rule
}

QList<QSizeF> ReportOutputTest::pdfPageSizes(const QByteArray &pdf) {
    static const QRegularExpression pageSize(u"Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts"_s);
    const QString info =
        runOnPdf(u"pdfinfo"_s, {u"-f"_s, u"1"_s, u"-l"_s, u"9999"_s, u"%pdf"_s}, pdf);
    QList<QSizeF> sizes;
    for (const QRegularExpressionMatch &match : pageSize.globalMatch(info))
        sizes.append({match.captured(1).toDouble(), match.captured(2).toDouble()});
    return sizes;
}
