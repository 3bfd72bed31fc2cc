#include "app/company.h"

#include "app/database.h"
#include "platform/briskoerror.h"
#include "platform/settingsstore.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A text column whose Null keeps what the field held before.
void readKeepingOld(const db::Row &row, const QString &column, QString &field) {
    if (!row.isNull(column))
        field = row.text(column);
}

// Three ways of reading a flag, kept apart on purpose: most are yes only at
// exactly 1, the two "hide" print settings are yes at anything but 0, and the
// last three only ever switch on while the program runs.
bool exactlyOne(const db::Row &row, const QString &column) {
    return row.int32(column) == 1;
}

bool anyNonZero(const db::Row &row, const QString &column) {
    return row.int32(column) != 0;
}

void switchOnAtOne(const db::Row &row, const QString &column, bool &field) {
    if (row.int32(column) == 1)
        field = true;
}

void copyRow(const db::Row &row, Company &c) {
    c.companyName = row.text(u"companyName"_s);
    readKeepingOld(row, u"address1"_s, c.address1);
    readKeepingOld(row, u"address2"_s, c.address2);
    readKeepingOld(row, u"city"_s, c.city);
    readKeepingOld(row, u"state"_s, c.state);
    readKeepingOld(row, u"zip"_s, c.zip);
    readKeepingOld(row, u"phone"_s, c.phone);
    c.numberFormat = row.textOr(u"numberFormat"_s, u"00000"_s);
    readKeepingOld(row, u"tagline"_s, c.tagline);
    c.defaultPaymentType = row.int16(u"defaultPaymentType"_s);
    c.defaultReceiptType = row.int16(u"defaultReceiptType"_s);
    c.taxRate = row.real(u"taxRate"_s);
    c.currencySymbol = row.int16(u"currencySymbol"_s);
    readKeepingOld(row, u"customCurrency"_s, c.customCurrency);
    readKeepingOld(row, u"customField1"_s, c.customField1);
    readKeepingOld(row, u"customField2"_s, c.customField2);
    readKeepingOld(row, u"customField3"_s, c.customField3);
    readKeepingOld(row, u"customField4"_s, c.customField4);
    readKeepingOld(row, u"customField5"_s, c.customField5);
    readKeepingOld(row, u"customField6"_s, c.customField6);
    c.resetNumberEOY = exactlyOne(row, u"resetNumberEOY"_s);
    c.requireAddress = exactlyOne(row, u"requireAddress"_s);
    c.restrictAccess = exactlyOne(row, u"restrictAccess"_s);
    c.useAutoComplete = exactlyOne(row, u"useAutoComplete"_s);
    c.hideSalesTax = anyNonZero(row, u"hideSalesTax"_s);
    c.hideAcctBalance = anyNonZero(row, u"hideAcctBalance"_s);
    switchOnAtOne(row, u"hideDiscountField"_s, c.hideDiscountField);
    switchOnAtOne(row, u"isTaxExempt"_s, c.isTaxExempt);
    c.otherFieldName = row.text(u"otherFieldName"_s);
    switchOnAtOne(row, u"usePOSPrinter"_s, c.usePOSPrinter);
}

} // namespace

Company &company() {
    static Company record;
    return record;
}

void resetCompany() {
    company() = Company{};
}

namespace modMain {

bool loadCompanyInfo() {
    return reraiseWithPrefix(u"modMain.loadCompanyInfo:  "_s, [] {
        const std::optional<db::Row> row = db::readFirst(u"SELECT * FROM tblSystem "_s);
        if (!row)
            return false;
        copyRow(*row, company());
        // An empty server means that e-mail has not been set up.
        company().mailServer = SettingsStore::read(SettingsKey::mailServer).toString();
        return true;
    });
}

} // namespace modMain
