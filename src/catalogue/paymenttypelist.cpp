#include "catalogue/paymenttypelist.h"

#include "receipts/receipt.h"

#include <QComboBox>
#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace Catalogue {

void loadPaymentTypes(QComboBox *list, qint16 defaultPaymentType) {
    list->clear();
    int selected = -1;
    for (const db::Row &row : Receipt().GetPaymentMethods(Receipt::PayMethodActive)) {
        const qint32 id = row.int32(u"payMethodID"_s);
        list->addItem(row.text(u"methodName"_s), id);
        if (id == defaultPaymentType)
            selected = list->count() - 1;
    }
    list->addItem(QCoreApplication::translate("Catalogue", "Other"),
                  int(Receipt::OtherPaymentType));
    list->setCurrentIndex(selected);
}

} // namespace Catalogue
