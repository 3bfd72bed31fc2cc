#include "admin/companysetup.h"

#include "app/runtimeformat.h"
#include "platform/dialogs.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace CompanySetup {

void loadStates(QComboBox *list) {
    static const QStringList states = {u"AL"_s,
                                       u"AK"_s,
                                       u"AZ"_s,
                                       u"AR"_s,
                                       u"AA"_s,
                                       u"AP"_s,
                                       u"AE"_s,
                                       u"CA"_s,
                                       u"CO"_s,
                                       u"CT"_s,
                                       u"DE"_s,
                                       u"DC"_s,
                                       u"FL"_s,
                                       u"GA"_s,
                                       u"HI"_s,
                                       u"ID"_s,
                                       u"IL"_s,
                                       u"IN"_s,
                                       u"IA"_s,
                                       u"KS"_s,
                                       u"KY"_s,
                                       u"LA"_s,
                                       u"ME"_s,
                                       u"MD"_s,
                                       u"MA"_s,
                                       u"MI"_s,
                                       u"MN"_s,
                                       u"MS"_s,
                                       u"MO"_s,
                                       u"MT"_s,
                                       u"NE"_s,
                                       u"NV"_s,
                                       u"NH"_s,
                                       u"NJ"_s,
                                       u"NM"_s,
                                       u"NY"_s,
                                       u"NC"_s,
                                       u"ND"_s,
                                       u"OH"_s,
                                       u"OK"_s,
                                       u"OR"_s,
                                       u"PA"_s,
                                       u"RI"_s,
                                       u"SC"_s,
                                       u"SD"_s,
                                       u"TN"_s,
                                       u"TX"_s,
                                       u"UT"_s,
                                       u"VT"_s,
                                       u"VA"_s,
                                       u"WA"_s,
                                       u"WV"_s,
                                       u"WI"_s,
                                       u"WY"_s,
                                       u""_s,
                                       u"Alberta"_s,
                                       u"British Columbia"_s,
                                       u"Manitoba"_s,
                                       u"New Brunswick"_s,
                                       u"Newfoundland"_s,
                                       u"N.W.T"_s,
                                       u"Nova Scotia"_s,
                                       u"Nunavut"_s,
                                       u"Ontario"_s,
                                       u"PEI"_s,
                                       u"Quebec"_s,
                                       u"Saskatchewan"_s,
                                       u"Yukon"_s};
    list->clear();
    list->addItems(states);
    list->view()->setAccessibleName(QCoreApplication::translate("CompanySetup", "State/Province"));
}

void showState(QComboBox *list, const QString &state) {
    const int entry = list->findText(state, Qt::MatchExactly);
    list->setCurrentIndex(entry);
    if (entry < 0)
        list->setEditText(state);
}

QString stateOf(const QComboBox *list) {
    const QString shown = list->currentText();
    if (list->currentIndex() == 0 && shown == list->itemText(0))
        return QString();
    return shown;
}

qint16 chosenPaymentType(const QComboBox *list) {
    const int chosen = list->currentIndex();
    if (chosen < 0) {
        throw BriskoError(
            381, QCoreApplication::translate("CompanySetup", "Invalid property array index"));
    }
    return static_cast<qint16>(list->itemData(chosen).toInt());
}

bool taxRateIsValid(const QString &text) {
    if (Runtime::isNumeric(text))
        return true;
    dialogs().message(
        QCoreApplication::translate("CompanySetup",
                                    "Invalid tax rate.  Use format 0.00 and do not include the %"),
        QCoreApplication::translate("CompanySetup", "Error"), Dialogs::Icon::Critical);
    return false;
}

} // namespace CompanySetup
