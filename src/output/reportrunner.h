#pragma once

#include "output/mailsettings.h"
#include "output/reportlayout.h"

#include <QString>

// Renders a report template (.mrt) from the database and delivers it to the
// printer, the screen or an e-mail. The caller sets the values a template may
// use, then calls runReport; a new runner is made for every output.
class ReportRunner {
public:
    // Output modes of runReport.
    static constexpr qint32 ToPrinter = 0;
    static constexpr qint32 ToScreen = 1;
    static constexpr qint32 PrepareEmail = 2;
    static constexpr qint32 ToEmail = 3;

    bool hideSalesTax = false;
    QString logoPath; // empty when there is no logo
    qint32 receiptID = 0;
    QString connectionString; // the database file the templates read
    bool isVoid = false;
    QString workFolder;
    QString emailTo;
    QString emailSubject;
    QString emailBody;
    bool hideDiscountField = false;
    bool isTaxExempt = false;
    QString otherFieldName;
    QString companyName;

    // The outgoing mail settings; every runner shares the stored ones.
    MailSettings mailSettings() const;
    void setMailSettings(const MailSettings &settings);

    // Renders the template and delivers it in `outputMode`. A template with
    // questions asks them first; when the user cancels, nothing is delivered.
    void runReport(const QString &templatePath, bool isReceipt, const QString &title,
                   qint32 outputMode);

    // The name of the report held in a template file.
    QString getReportName(const QString &templatePath);

    // The report laid out, without delivering it; nothing when the user
    // cancelled its questions.
    std::optional<RenderedReport> render(const QString &templatePath, bool isReceipt,
                                         const QString &title);
};
