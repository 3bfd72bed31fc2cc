#include "output/reportrunner.h"

#include "app/session.h"
#include "output/reportdata.h"
#include "output/reportdelivery.h"
#include "output/reportpainter.h"
#include "output/reporttemplate.h"
#include "platform/briskoerror.h"

#include <QDate>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// Points the database session at the runner's file while a report reads it.
class SessionFile {
public:
    explicit SessionFile(const QString &connectionString)
        : m_previous(session().connectionString) {
        if (!connectionString.isEmpty())
            session().connectionString = connectionString;
    }
    ~SessionFile() { session().connectionString = m_previous; }
    SessionFile(const SessionFile &) = delete;
    SessionFile &operator=(const SessionFile &) = delete;

private:
    QString m_previous;
};

} // namespace

MailSettings ReportRunner::mailSettings() const {
    return MailSettings::stored();
}

void ReportRunner::setMailSettings(const MailSettings &settings) {
    settings.store();
}

QString ReportRunner::getReportName(const QString &templatePath) {
    return ReportTemplate::load(templatePath).name;
}

std::optional<RenderedReport> ReportRunner::render(const QString &templatePath, bool isReceipt,
                                                   const QString &title) {
    const ReportTemplate report = ReportTemplate::load(templatePath);
    ReportData data;
    data.flags = {{u"hideSalesTax"_s, hideSalesTax},
                  {u"hideDiscountField"_s, hideDiscountField},
                  {u"isTaxExempt"_s, isTaxExempt},
                  {u"isVoid"_s, isVoid},
                  {u"isReceipt"_s, isReceipt},
                  {u"logo"_s, !logoPath.isEmpty() && QFileInfo::exists(logoPath)}};
    data.variables = {{u"companyName"_s, companyName},
                      {u"otherFieldName"_s, otherFieldName},
                      {u"title"_s, title},
                      {u"reportName"_s, report.name},
                      {u"logoPath"_s, logoPath},
                      {u"receiptID"_s, receiptID},
                      {u"today"_s, QDate::currentDate()}};
    if (!report.parameters.isEmpty()) {
        QHash<QString, QVariant> answers =
            defaultParameterValues(report.parameters, QDate::currentDate());
        if (!reportDelivery().askParameters(report.name, report.parameters, answers))
            return std::nullopt;
        data.variables.insert(answers);
    }
    const SessionFile file(connectionString);
    data.readCurrencySymbol();
    data.fetch(report);
    return RenderedReport{title, layoutReport(report, data)};
}

void ReportRunner::runReport(const QString &templatePath, bool isReceipt, const QString &title,
                             qint32 outputMode) {
    const std::optional<RenderedReport> report = render(templatePath, isReceipt, title);
    if (!report)
        return;
    switch (outputMode) {
    case ToScreen:
        reportDelivery().toScreen(*report);
        return;
    case PrepareEmail:
    case ToEmail: {
        const MailAttachment pdf{title + u".pdf"_s, u"application/pdf"_s,
                                 ReportPainter::toPdf(*report)};
        reportDelivery().toMail(MailMessage{emailTo, {}, emailSubject, emailBody, {pdf}});
        return;
    }
    default:
        reportDelivery().toPrinter(*report);
        return;
    }
}
