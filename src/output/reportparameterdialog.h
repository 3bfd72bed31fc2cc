#pragma once

#include "output/reporttemplate.h"

#include <QDialog>
#include <QHash>
#include <QVariant>

class QFormLayout;

// The small dialog a report shows before it renders: one field for each of
// its questions, filled with their defaults. Date fields are named "dt" and
// text fields "txt", each followed by the question's name.
class ReportParameterDialog : public QDialog {
    Q_OBJECT

public:
    ReportParameterDialog(const QString &reportName, const QList<ReportParameter> &parameters,
                          const QHash<QString, QVariant> &values, QWidget *parent = nullptr);

    QHash<QString, QVariant> values() const;

private:
    QList<ReportParameter> m_parameters;
    QHash<QString, QWidget *> m_fields;
};
