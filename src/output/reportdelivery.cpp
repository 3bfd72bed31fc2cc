#include "output/reportdelivery.h"

#include "output/reportpainter.h"
#include "output/reportparameterdialog.h"
#include "output/reportpreview.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDate>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<ReportDelivery> &current() {
    static std::unique_ptr<ReportDelivery> instance = std::make_unique<DesktopReportDelivery>();
    return instance;
}

QString tr(const char *text) {
    return QCoreApplication::translate("ReportDelivery", text);
}

QVariant defaultValue(const ReportParameter &parameter, const QDate &today) {
    const QString &value = parameter.defaultValue;
    if (parameter.kind == ReportParameter::Kind::Text)
        return value;
    if (value == u"monthStart")
        return QDate(today.year(), today.month(), 1);
    if (value == u"monthEnd")
        return QDate(today.year(), today.month(), today.daysInMonth());
    if (value == u"yearStart")
        return QDate(today.year(), 1, 1);
    const QDate fixed = QDate::fromString(value, Qt::ISODate);
    return fixed.isValid() ? fixed : today;
}

} // namespace

ReportDelivery &reportDelivery() {
    return *current();
}

std::unique_ptr<ReportDelivery> installReportDelivery(std::unique_ptr<ReportDelivery> replacement) {
    return std::exchange(current(), std::move(replacement));
}

QHash<QString, QVariant> defaultParameterValues(const QList<ReportParameter> &parameters,
                                                const QDate &today) {
    QHash<QString, QVariant> values;
    for (const ReportParameter &parameter : parameters)
        values.insert(parameter.name, defaultValue(parameter, today));
    return values;
}

bool DesktopReportDelivery::askParameters(const QString &reportName,
                                          const QList<ReportParameter> &parameters,
                                          QHash<QString, QVariant> &values) {
    ReportParameterDialog dialog(reportName, parameters, values);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    values = dialog.values();
    return true;
}

// A shop prints at the counter: straight to the default printer, no dialog.
void DesktopReportDelivery::toPrinter(const RenderedReport &report) {
    const QPrinterInfo printerInfo = QPrinterInfo::defaultPrinter();
    if (printerInfo.isNull()) {
        const Dialogs::Answer answer = dialogs().message(
            tr("No printer is installed on this computer.  Would you like to see it on the "
               "screen instead?"),
            tr("No Printer"), Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNo);
        if (answer == Dialogs::Answer::Yes)
            toScreen(report);
        return;
    }
    QPrinter printer(printerInfo, QPrinter::HighResolution);
    printer.setDocName(report.title);
    printer.setFullPage(true);
    ReportPainter::paintReport(printer, report);
    if (printer.printerState() == QPrinter::Error)
        throw BriskoError(RuntimeError::DatabaseError,
                          tr("The printer %1 could not print.").arg(printerInfo.printerName()));
}

void DesktopReportDelivery::toScreen(const RenderedReport &report) {
    ReportPreview preview(report, QApplication::activeWindow());
    preview.exec();
}

void DesktopReportDelivery::toMail(const MailMessage &message) {
    sendMail(message, MailSettings::stored());
}
