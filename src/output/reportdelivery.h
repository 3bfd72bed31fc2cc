#pragma once

#include "output/mailer.h"
#include "output/reportlayout.h"

#include <QHash>
#include <QList>
#include <QVariant>
#include <memory>

struct ReportParameter;

// Where a rendered report goes, and the questions a template asks before it
// renders. Tests install a double that notes what was delivered.
class ReportDelivery {
public:
    virtual ~ReportDelivery() = default;

    // Fills `values` with the answers; false when the user cancels.
    virtual bool askParameters(const QString &reportName, const QList<ReportParameter> &parameters,
                               QHash<QString, QVariant> &values) = 0;
    virtual void toPrinter(const RenderedReport &report) = 0;
    virtual void toScreen(const RenderedReport &report) = 0;
    virtual void toMail(const MailMessage &message) = 0;
};

ReportDelivery &reportDelivery();

// Replaces the delivery in use; gives back the one that was in use.
std::unique_ptr<ReportDelivery> installReportDelivery(std::unique_ptr<ReportDelivery> replacement);

// The real thing: the default printer without a dialog, the preview window,
// the mailer, and a small dialog for the questions.
class DesktopReportDelivery final : public ReportDelivery {
public:
    bool askParameters(const QString &reportName, const QList<ReportParameter> &parameters,
                       QHash<QString, QVariant> &values) override;
    void toPrinter(const RenderedReport &report) override;
    void toScreen(const RenderedReport &report) override;
    void toMail(const MailMessage &message) override;
};

// The answers a template's questions start with: "today", "monthStart",
// "monthEnd", "yearStart", or the default text itself.
QHash<QString, QVariant> defaultParameterValues(const QList<ReportParameter> &parameters,
                                                const QDate &today);
