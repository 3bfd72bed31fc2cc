#include "output/reportparameterdialog.h"

#include "platform/mnemonics.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

ReportParameterDialog::ReportParameterDialog(const QString &reportName,
                                             const QList<ReportParameter> &parameters,
                                             const QHash<QString, QVariant> &values,
                                             QWidget *parent)
    : QDialog(parent)
    , m_parameters(parameters) {
    setWindowTitle(reportName);
    auto *form = new QFormLayout(this);
    QString taken = u"oc"_s; // OK and Cancel
    for (const ReportParameter &parameter : parameters) {
        QWidget *field = nullptr;
        if (parameter.kind == ReportParameter::Kind::Date) {
            auto *date = new QDateEdit(values.value(parameter.name).toDate(), this);
            date->setCalendarPopup(true);
            date->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
            date->setObjectName(u"dt"_s + parameter.name);
            field = date;
        } else {
            auto *text = new QLineEdit(values.value(parameter.name).toString(), this);
            text->setObjectName(u"txt"_s + parameter.name);
            field = text;
        }
        field->setAccessibleName(parameter.label);
        form->addRow(withMnemonic(parameter.label, taken), field);
        m_fields.insert(parameter.name, field);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(u"cmdOK"_s);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(u"cmdCancel"_s);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("&Cancel"));
    for (QAbstractButton *button : buttons->buttons())
        button->setAccessibleName(button->text().remove(u'&'));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    setFixedSize(sizeHint());
}

QHash<QString, QVariant> ReportParameterDialog::values() const {
    QHash<QString, QVariant> result;
    for (const ReportParameter &parameter : m_parameters) {
        QWidget *field = m_fields.value(parameter.name);
        if (auto *date = qobject_cast<QDateEdit *>(field))
            result.insert(parameter.name, date->date());
        else if (auto *text = qobject_cast<QLineEdit *>(field))
            result.insert(parameter.name, text->text());
    }
    return result;
}
