#pragma once

#include <QString>

// The company's settings, copied from the one row of tblSystem at start-up.
// Screens read these fields, never the table.
struct Company {
    QString companyName;
    QString address1;
    QString address2;
    QString city;
    QString state;
    QString zip;
    QString phone;
    QString numberFormat;
    QString tagline;
    qint16 defaultPaymentType = 0;
    qint16 defaultReceiptType = 0;
    double taxRate = 0;
    qint16 currencySymbol = 0;
    QString customCurrency;
    QString customField1;
    QString customField2;
    QString customField3;
    QString customField4;
    QString customField5;
    QString customField6;
    bool resetNumberEOY = false;
    bool requireAddress = false;
    bool restrictAccess = false;
    bool useAutoComplete = false;
    bool hideSalesTax = false;
    bool hideAcctBalance = false;
    bool hideDiscountField = false;
    bool isTaxExempt = false;
    QString otherFieldName;
    bool usePOSPrinter = false;
    // The outgoing mail server; empty means e-mail has not been set up.
    QString mailServer;
};

Company &company();

// Back to the state of a fresh process.
void resetCompany();

namespace modMain {

// Fills the company record from tblSystem; false when the table has no row,
// and then nothing changes.
bool loadCompanyInfo();

} // namespace modMain
