#pragma once

#include "output/reportdelivery.h"
#include "output/reportlayout.h"
#include "receipts/receipt.h"
#include "support/briskotest.h"

#include <QDate>
#include <QStringList>

// Receipt and ledger output on a fresh database. Whatever a report delivers is
// kept instead of printed, shown or mailed, and can be read back from its PDF.
class ReportOutputTest : public BriskoTest {
public:
    struct Delivered {
        enum class Where { Printer, Screen, Mail };
        Where where;
        RenderedReport report;
        MailMessage mail;
    };

protected:
    class RecordingDelivery final : public ReportDelivery {
    public:
        QList<Delivered> delivered;
        QStringList asked; // the reports whose questions were asked
        QHash<QString, QVariant> answers;
        bool cancel = false;

        bool askParameters(const QString &reportName, const QList<ReportParameter> &,
                           QHash<QString, QVariant> &values) override;
        void toPrinter(const RenderedReport &report) override;
        void toScreen(const RenderedReport &report) override;
        void toMail(const MailMessage &message) override;
    };

    void SetUp() override;
    void TearDown() override;

    RecordingDelivery &delivery() { return *m_delivery; }
    // Where each delivery went with its title or addressee, in order: "printer Receipt 7".
    QStringList deliveries() const;

    // A customer with a full address; gives its key.
    static qint32 addCustomer(const QString &name, const QString &email = {});
    // A product receipt of the given lines ("sku", quantity, price) written
    // as the editor writes it; gives its key.
    struct Line {
        QString sku;
        QString description;
        qint16 quantity;
        double price;
        QString extDesc = {};
    };
    static qint32 addProductReceipt(const QString &number, const QDateTime &date, qint32 payeeID,
                                    const QList<Line> &lines, qint16 status = Receipt::Issued);

    // The text of the last delivered report's PDF, as pdftotext lays it out.
    QString deliveredText();
    // The PDF of the last delivered report.
    QByteArray deliveredPdf();

    static QString pdfToText(const QByteArray &pdf);
    // One line per image of the PDF, as "pdfimages -list" gives them.
    static QStringList pdfImages(const QByteArray &pdf);
    // Each page's size in points.
    static QList<QSizeF> pdfPageSizes(const QByteArray &pdf);

private:
    RecordingDelivery *m_delivery = nullptr;
    std::unique_ptr<ReportDelivery> m_previous;
};
