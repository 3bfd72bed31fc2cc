#include "editor/frmreceipt.h"
#include "ui_frmReceipt.h"

#include "admin/systemuser.h"
#include "app/company.h"
#include "app/runtimeformat.h"
#include "app/session.h"
#include "catalogue/paymenttypelist.h"
#include "catalogue/product.h"
#include "catalogue/service.h"
#include "customers/payee.h"
#include "output/modreports.h"
#include "platform/briskoerror.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "receipts/receipt.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QStyle>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kAmountFormat = u"0.00"_s;
const QString kBalanceFormat = u"#,##0.00"_s;

constexpr int kProductColumnWidths[] = {50, 110, 240, 80, 80};

// The states and provinces of the address, US first, then Canada's after an
// empty divider.
const QStringList &stateEntries() {
    static const QString states =
        u"AL,AK,AZ,AR,AA,AP,AE,CA,CO,CT,DE,DC,FL,GA,HI,ID,IL,IN,IA,KS,KY,LA,ME,MD,MA,MI,MN,MS,"
        "MO,MT,NE,NV,NH,NJ,NM,NY,NC,ND,OH,OK,OR,PA,RI,SC,SD,TN,TX,UT,VT,VA,WA,WV,WI,WY"_s;
    static const QString provinces =
        u"Alberta,British Columbia,Manitoba,New Brunswick,Newfoundland,N.W.T,Nova Scotia,"
        "Nunavut,Ontario,PEI,Quebec,Saskatchewan,Yukon"_s;
    static const QStringList entries = QStringList{QString()} + states.split(u',') +
                                       QStringList{QString()} + provinces.split(u',');
    return entries;
}

const SystemUser *currentUser() {
    return session().currentUser.get();
}

bool userMay(qint16 SystemUser::*right) {
    const SystemUser *user = currentUser();
    return user && user->*right == 1;
}

// The entry of `list` whose item data is `data`; none leaves the selection.
void selectByData(QComboBox *list, int data) {
    const int index = list->findData(data);
    if (index >= 0)
        list->setCurrentIndex(index);
}

QIcon toolIcon(const QWidget *screen, const QString &theme, QStyle::StandardPixmap fallback) {
    return QIcon::fromTheme(theme, screen->style()->standardIcon(fallback));
}

} // namespace

frmReceipt::frmReceipt(QWidget *parent)
    : ModalScreen(parent)
    , ui(std::make_unique<Ui::frmReceipt>()) {
    ui->setupUi(this);
    ui->optView->setId(ui->optView0, Receipt::ProductReceipt);
    ui->optView->setId(ui->optView1, Receipt::ServiceReceipt);
    ui->optView->setId(ui->optView2, Receipt::AccountPayment);
    createToolIcons();
    // The date as the program writes it everywhere: the user's short date
    // with all four digits of the year.
    QString dateFormat = QLocale().dateFormat(QLocale::ShortFormat);
    if (!dateFormat.contains(u"yyyy"_s))
        dateFormat.replace(u"yy"_s, u"yyyy"_s);
    ui->txtReceiptDate->setDisplayFormat(dateFormat);
    prepareProductList();
    connectControls();
    prepareCustomerMatching();
}

frmReceipt::~frmReceipt() = default;

// The lines of a product receipt; money and quantities right-aligned.
void frmReceipt::prepareProductList() {
    QHeaderView *header = ui->lstProducts->header();
    for (int column = 0; column < std::ssize(kProductColumnWidths); ++column)
        header->resizeSection(column, kProductColumnWidths[column]);
    header->setStretchLastSection(true);
    header->setAccessibleName(tr("Product columns"));
    for (int column : {0, 3, 4})
        ui->lstProducts->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

void frmReceipt::createToolIcons() {
    ui->ID_Print->setIcon(toolIcon(this, u"document-print"_s, QStyle::SP_DialogSaveButton));
    ui->ID_PrintPreview->setIcon(
        toolIcon(this, u"document-print-preview"_s, QStyle::SP_FileDialogContentsView));
    ui->ID_EditReceipt->setIcon(
        toolIcon(this, u"document-edit"_s, QStyle::SP_FileDialogDetailedView));
    ui->ID_Void->setIcon(toolIcon(this, u"edit-delete"_s, QStyle::SP_DialogDiscardButton));
    ui->ID_SaveClose->setIcon(toolIcon(this, u"document-save"_s, QStyle::SP_DialogSaveButton));
    ui->ID_SaveNew->setIcon(toolIcon(this, u"document-new"_s, QStyle::SP_FileIcon));
    // The toolbar takes no focus: the keyboard saves through shortcuts.
    ui->ID_SaveClose->setShortcut(QKeySequence::Save);
    ui->ID_SaveNew->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    for (QAction *tool : {ui->ID_SaveClose, ui->ID_SaveNew})
        tool->setToolTip(tool->text().replace(u"&&"_s, u"&"_s) + u" ("_s +
                         tool->shortcut().toString(QKeySequence::NativeText) + u')');
    for (QAction *tool : ui->SSActiveToolBars1->actions()) {
        if (QWidget *button = ui->SSActiveToolBars1->widgetForAction(tool))
            button->setAccessibleName(tool->text());
    }
}

void frmReceipt::connectControls() {
    connect(ui->ID_Print, &QAction::triggered, this,
            [this] { printReceipt(modReports::PrinterMode); });
    connect(ui->ID_PrintPreview, &QAction::triggered, this, &frmReceipt::previewReceipt);
    connect(ui->ID_EditReceipt, &QAction::triggered, this, &frmReceipt::editReceipt);
    connect(ui->ID_Void, &QAction::triggered, this, &frmReceipt::voidReceipt);
    for (QAction *tool : {ui->ID_SaveClose, ui->ID_SaveNew}) {
        const bool close = tool == ui->ID_SaveClose;
        connect(tool, &QAction::triggered, this, [this, close] { saveForm(close); });
    }
    connect(ui->cmdSaveClose, &QPushButton::clicked, this, [this] { saveForm(true); });
    connect(ui->cmdSaveNew, &QPushButton::clicked, this, [this] { saveForm(false); });
    connect(ui->cmdAddProduct, &QPushButton::clicked, this, &frmReceipt::addProduct);
    connect(ui->lstProducts, &QTreeWidget::itemDoubleClicked, this, &frmReceipt::editProduct);
    connect(ui->optView, &QButtonGroup::idClicked, this, &frmReceipt::viewChanged);
    connect(ui->lstPaymentType, &QComboBox::currentIndexChanged, this,
            &frmReceipt::paymentTypeChanged);
    connect(ui->lstServices, &QComboBox::activated, this, &frmReceipt::serviceChosen);
    connect(ui->SSTab1, &QTabWidget::currentChanged, this, &frmReceipt::tabChanged);

    for (QLineEdit *amount : {ui->txtDue, ui->txtOther, ui->txtDiscount, ui->txtRecvd})
        connect(amount, &QLineEdit::textChanged, this, &frmReceipt::calculateTotals);
    connect(ui->chkTaxExempt, &QCheckBox::toggled, this, &frmReceipt::calculateTotals);

    for (QLineEdit *text :
         {ui->txtAddress, ui->txtAddress2, ui->txtCheckNum, ui->txtCity, ui->txtDiscount,
          ui->txtDue, ui->txtOther, ui->txtPhone, ui->txtRecvd, ui->txtZip})
        Utility::selectAllOnFocus(text);
    for (QObject *watched :
         {static_cast<QObject *>(ui->txtDue), static_cast<QObject *>(ui->txtRecvd),
          static_cast<QObject *>(ui->txtDesc), static_cast<QObject *>(ui->txtRecvdBy),
          static_cast<QObject *>(ui->lstProducts)})
        watched->installEventFilter(this);
}

void frmReceipt::load() {
    ui->txtReceiptDate->setDate(QDate::currentDate());
    customerListPending = true;
    setEditable(true);
    setTools({ui->ID_Print, ui->ID_PrintPreview, ui->ID_Void, ui->ID_EditReceipt}, false);
    setTools({ui->ID_SaveNew, ui->ID_SaveClose}, true);
    customerChanged = false;
    loadPaymentTypes();
    loadCustomFields();
    loadServices();
    loadStates();
    applyCompanySettings();
    setWindowTitle(tr("New Receipt"));
    askBeforeClose = true;

    if (receiptID > 0) {
        loadReceipt();
        setEditable(false);
        setTools({ui->ID_SaveNew, ui->ID_SaveClose}, false);
        setTools({ui->ID_Print, ui->ID_PrintPreview}, true);
        askBeforeClose = false;
    } else {
        applyRestrictedReceiver();
    }
}

// A tax-exempt company still has its tax worked out: the setting only hides it.
void frmReceipt::applyCompanySettings() {
    const Company &settings = company();
    ui->lblTaxTitle->setText(tr("Tax (") + Runtime::formatNumber(settings.taxRate, u"0.000"_s) +
                             tr("%):"));
    if (settings.isTaxExempt) {
        for (QWidget *tax :
             {static_cast<QWidget *>(ui->lblTaxTitle), static_cast<QWidget *>(ui->lblTax),
              static_cast<QWidget *>(ui->chkTaxExempt)})
            tax->hide();
    }
    ui->lblOther->setText(settings.otherFieldName);
    if (settings.hideDiscountField) {
        ui->lblDiscount->hide();
        ui->txtDiscount->hide();
    }
}

void frmReceipt::showEvent(QShowEvent *event) {
    ModalScreen::showEvent(event);
    if (ui->txtPayeeName->isEnabled() && receiptID == 0 && !firstFocusDone) {
        ui->txtPayeeName->setFocus();
        firstFocusDone = true;
    }
}

void frmReceipt::setTools(std::initializer_list<QAction *> tools, bool enabled) {
    for (QAction *tool : tools)
        tool->setEnabled(enabled);
}

// The new and edit states have every field open; the view state has them
// closed. A new receipt takes the company's default type here.
void frmReceipt::setEditable(bool enabled) {
    const QList<QWidget *> first = {
        ui->Label1,         ui->Label2,           ui->Label3,        ui->Label4,
        ui->Label5,         ui->Label6,           ui->Label8,        ui->Label9,
        ui->Label11,        ui->Label12,          ui->Label13,       ui->Label14,
        ui->Label15,        ui->Label16,          ui->Label19,       ui->lblTaxTitle,
        ui->lblOther,       ui->lblDiscount,      ui->lblVoid,       ui->Label20,
        ui->Label10,        ui->lblBalance,       ui->lblSubTotal,   ui->lblTotal,
        ui->lstPaymentType, ui->optView0,         ui->optView1,      ui->optView2,
        ui->Frame1,         ui->frameServiceView, ui->frameProdView, ui->txtPayeeName,
        ui->txtAddress,     ui->txtAddress2,      ui->txtCity,       ui->txtPhone,
        ui->txtEmail,       ui->txtState,         ui->txtZip,        ui->txtDesc,
        ui->txtReceiptDate, ui->txtCheckNum};
    for (QWidget *widget : first)
        widget->setEnabled(enabled);

    const int defaultType = company().defaultReceiptType;
    if (receiptID == 0 && enabled && defaultType >= 0 && defaultType <= 2)
        selectView(defaultType);

    const QList<QWidget *> second = {
        ui->lblTax,     ui->chkTaxExempt,  ui->txtDiscount, ui->txtOther,   ui->txtRecvd,
        ui->txtRecvdBy, ui->cmdAddProduct, ui->lstProducts, ui->txtDue,     ui->Frame3,
        ui->lblCustom1, ui->lblCustom2,    ui->lblCustom3,  ui->lblCustom4, ui->lblCustom5,
        ui->lblCustom6, ui->txtCustom1,    ui->txtCustom2,  ui->txtCustom3, ui->txtCustom4,
        ui->txtCustom5, ui->txtCustom6,    ui->lstServices};
    for (QWidget *widget : second)
        widget->setEnabled(enabled);
    applyRestrictedReceiver();
}

// With logins on, a new receipt is received by whoever is logged in.
void frmReceipt::applyRestrictedReceiver() {
    if (!company().restrictAccess || receiptID != 0 || !currentUser())
        return;
    ui->txtRecvdBy->setText(currentUser()->username);
    ui->txtRecvdBy->setEnabled(false);
}

void frmReceipt::loadPaymentTypes() {
    runCommand(tr("An error has occured:  "), [this] {
        Catalogue::loadPaymentTypes(ui->lstPaymentType, company().defaultPaymentType);
    });
}

void frmReceipt::loadCustomFields() {
    const Company &settings = company();
    const QString names[] = {settings.customField1, settings.customField2, settings.customField3,
                             settings.customField4, settings.customField5, settings.customField6};
    QLabel *const labels[] = {ui->lblCustom1, ui->lblCustom2, ui->lblCustom3,
                              ui->lblCustom4, ui->lblCustom5, ui->lblCustom6};
    QLineEdit *const fields[] = {ui->txtCustom1, ui->txtCustom2, ui->txtCustom3,
                                 ui->txtCustom4, ui->txtCustom5, ui->txtCustom6};
    for (int index = 0; index < 6; ++index) {
        const bool used = !names[index].isEmpty();
        labels[index]->setText(used ? names[index] : QString());
        fields[index]->setVisible(used);
        fields[index]->setAccessibleName(used ? names[index]
                                              : tr("Custom field %1").arg(index + 1));
        if (used) {
            hasCustomFields = true;
            if (!firstCustomField)
                firstCustomField = fields[index];
        }
    }
}

void frmReceipt::loadServices() {
    runCommand(tr("An error has occured:  "), tr("Load Service List"), [this] {
        ui->lstServices->clear();
        for (const db::Row &row : Service().GetServices())
            ui->lstServices->addItem(row.text(u"shortName"_s), row.int32(u"serviceID"_s));
        ui->lstServices->setCurrentIndex(-1);
    });
}

void frmReceipt::loadStates() {
    ui->txtState->view()->setAccessibleName(tr("States and provinces"));
    ui->txtState->clear();
    ui->txtState->addItems(stateEntries());
}

// A state of the list is selected as its entry; any other stays as typed.
void frmReceipt::setStateText(const QString &state) {
    const int index = ui->txtState->findText(state, Qt::MatchFixedString);
    if (index >= 0)
        ui->txtState->setCurrentIndex(index);
    else
        ui->txtState->setEditText(state);
}

// Selecting an option runs its handler, as a click on it does. A type
// without an option (an opening balance) selects none.
void frmReceipt::selectView(int index) {
    if (index < 0 || index > 2) {
        ui->optView->setExclusive(false);
        for (QAbstractButton *option : ui->optView->buttons())
            option->setChecked(false);
        ui->optView->setExclusive(true);
        return;
    }
    ui->optView->button(index)->setChecked(true);
    viewChanged(index);
}

void frmReceipt::viewChanged(int index) {
    const QList<QWidget *> taxAndCharges = {ui->txtOther,    ui->txtDiscount, ui->lblTax,
                                            ui->lblOther,    ui->lblDiscount, ui->lblTaxTitle,
                                            ui->chkTaxExempt};
    for (QWidget *widget : taxAndCharges)
        widget->setEnabled(true);
    isProductView = index == Receipt::ProductReceipt;
    ui->frameProdView->setVisible(isProductView);
    ui->frameServiceView->setVisible(!isProductView);
    if (index == Receipt::ServiceReceipt) {
        ui->frameServiceView->setTitle(tr("Service Provided:"));
        ui->txtDue->setEnabled(true);
        ui->txtDue->setText(u"0"_s);
        ui->Label8->setText(tr("Amount Due:"));
    } else if (index == Receipt::AccountPayment) {
        // A payment on account is the balance, with no tax, charge or discount.
        ui->frameServiceView->setTitle(tr("Comments:"));
        ui->txtDue->setEnabled(false);
        ui->txtDue->setText(Runtime::formatNumber(customerBalance, kBalanceFormat));
        ui->Label8->setText(tr("Account Balance:"));
        for (QLineEdit *amount : {ui->txtOther, ui->txtDiscount})
            amount->setText(kAmountFormat);
        ui->lblTax->setText(kAmountFormat);
        for (QWidget *widget : taxAndCharges)
            widget->setEnabled(false);
    }
    calculateTotals();
}

// A method named with "Check" takes a check number, any other a description.
void frmReceipt::paymentTypeChanged() {
    if (ui->lstPaymentType->currentIndex() < 0)
        return;
    const bool check = ui->lstPaymentType->currentText().contains(u"Check"_s, Qt::CaseSensitive);
    ui->Label12->setText(check ? tr("Check #:") : tr("Payment Desc:"));
}

void frmReceipt::serviceChosen() {
    if (loadingReceipt)
        return;
    const qint32 serviceID = ui->lstServices->currentData().toInt();
    if (ui->lstServices->currentIndex() >= 0 && serviceID > 0)
        applyService(serviceID);
}

void frmReceipt::applyService(qint32 serviceID) {
    runCommand(tr("An error has occured:  "), [&] {
        Service service;
        if (!service.GetService(serviceID)) {
            dialogs().message(tr("Could not retrieve service description."), tr("Error"),
                              Dialogs::Icon::Critical);
            return;
        }
        skipDescSelect = true;
        ui->txtDesc->setPlainText(service.longDesc);
        ui->txtDesc->setFocus();
        ui->txtDesc->moveCursor(QTextCursor::End);
        ui->txtDue->setText(Runtime::formatNumber(service.defaultCost, kBalanceFormat));
    });
}

// A receipt that is not found leaves an empty screen with its account at 0.
void frmReceipt::loadReceipt() {
    try {
        Receipt receipt;
        const bool found = receipt.GetReceipt(receiptID, QString());
        productTotal = Currency();
        skipNameSearch = true;
        if (found) {
            loadingReceipt = true;
            loadedNumber = receipt.receiptNumber;
            showReceipt(receipt);
        }
        ui->lblID->setText(QString::number(receipt.payeeID));
        ui->lblAcctBal->setText(Runtime::formatNumber(receipt.accountBalance, kBalanceFormat));
        QString title = tr("Receipt ") + receipt.receiptNumber;
        if (receipt.status == Receipt::Void)
            title += tr(" VOID - VOID - VOID");
        setWindowTitle(title);
    } catch (const BriskoError &error) {
        showFailure(tr("An error has occured: "), error, tr("Error"), Dialogs::Icon::Exclamation);
    }
    customerChanged = false;
    loadingReceipt = false;
}

// Fills the screen from the receipt `receiptID`. The balance shown is the
// one stored with the receipt, as of that receipt.
void frmReceipt::showReceipt(const Receipt &receipt) {
    Payee payee;
    payee.LoadPayeeInfo(receipt.payeeID);
    loadedPayeeID = receipt.payeeID;
    showPayee(payee);
    ui->txtReceiptDate->setDate(receipt.receiptDate.date());

    const bool isVoid = receipt.status == Receipt::Void;
    ui->ID_Void->setEnabled(!isVoid && userMay(&SystemUser::canVoid));
    ui->ID_EditReceipt->setEnabled(!isVoid && userMay(&SystemUser::canEdit));

    if (receipt.receiptType == Receipt::ProductReceipt) {
        selectView(Receipt::ProductReceipt);
        loadProducts();
    } else {
        selectView(receipt.receiptType);
        // Types without an option keep the captions of the view as they were.
        isProductView = false;
        ui->frameProdView->hide();
        ui->frameServiceView->show();
        ui->txtDesc->setPlainText(receipt.receiptDesc);
        ui->txtDue->setText(Runtime::formatNumber(receipt.amountDue, kAmountFormat));
    }
    calculateTotals();
    ui->txtOther->setText(Runtime::formatNumber(receipt.amountOther, kAmountFormat));
    ui->txtDiscount->setText(Runtime::formatNumber(receipt.amountDiscount, kAmountFormat));
    if (receipt.amountTax == Currency() && !ui->optView2->isChecked())
        ui->chkTaxExempt->setChecked(true);
    ui->txtRecvd->setText(Runtime::formatNumber(receipt.amountReceived, kAmountFormat));
    ui->txtCheckNum->setText(receipt.paymentType != Receipt::OtherPaymentType
                                 ? receipt.checkNumber
                                 : receipt.otherPaymentDesc);
    ui->txtRecvdBy->setText(receipt.receivedBy);
    selectByData(ui->lstPaymentType, receipt.paymentType);
    if (isVoid) {
        ui->lblVoid->show();
        ui->lblVoidReason->show();
        ui->lblVoidReason->setText(receipt.voidReason);
    }
    const QString customFields[] = {receipt.customField1, receipt.customField2,
                                    receipt.customField3, receipt.customField4,
                                    receipt.customField5, receipt.customField6};
    QLineEdit *const fields[] = {ui->txtCustom1, ui->txtCustom2, ui->txtCustom3,
                                 ui->txtCustom4, ui->txtCustom5, ui->txtCustom6};
    for (int index = 0; index < 6; ++index)
        fields[index]->setText(customFields[index]);
    if (receipt.serviceID >= 1)
        selectByData(ui->lstServices, receipt.serviceID);
    calculateTotals();
}

// The lines as they were sold: quantity, SKU, description, unit price, line
// total and extended description, the product's key kept with the row.
void frmReceipt::loadProducts() {
    ui->lstProducts->clear();
    for (const db::Row &row : Receipt().getReceiptProducts(receiptID)) {
        Product item;
        item.productID = row.int32(u"productID"_s);
        item.qty = row.int16(u"quantity"_s);
        item.productSKU = row.textOr(u"productSKU"_s, QString());
        item.description = row.textOr(u"overrideDesc"_s, QString());
        item.cost = row.currency(u"overrideCost"_s);
        const Currency unitTotal = row.currency(u"unitTotal"_s);
        auto *line = new QTreeWidgetItem(ui->lstProducts);
        showLine(line, item);
        line->setText(4, Runtime::formatNumber(unitTotal, kAmountFormat));
        line->setText(5, row.textOr(u"extDesc"_s, QString()));
        productTotal += unitTotal;
    }
}

void frmReceipt::editReceipt() {
    setEditable(true);
    ui->ID_SaveClose->setEnabled(true);
    ui->txtPayeeName->setFocus();
}

void frmReceipt::beginEdit() {
    setEditable(true);
    askBeforeClose = true;
    setTools({ui->ID_SaveNew, ui->ID_SaveClose}, true);
}

void frmReceipt::previewReceipt() {
    printReceipt(modReports::ScreenMode);
}

void frmReceipt::printReceipt(qint16 mode) {
    modReports::printReceipt(receiptID, mode);
}

void frmReceipt::tabChanged(int index) {
    if (index == ui->SSTab1->indexOf(ui->tabCustomFields)) {
        if (firstCustomField)
            firstCustomField->setFocus();
    } else {
        ui->txtPayeeName->setFocus();
    }
}

bool frmReceipt::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ui->txtPayeeName)
        return payeeNameEvent(event);
    if (watched == ui->lstCustomerMatch && event->type() == QEvent::KeyPress)
        return customerMatchKey(static_cast<QKeyEvent *>(event));
    if ((watched == ui->txtDue || watched == ui->txtRecvd) && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        // Only a move within the screen checks; a box or another window does
        // not. The check runs once the focus has arrived, so that it can move it back.
        auto *field = static_cast<QLineEdit *>(watched);
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            QTimer::singleShot(0, field, [this, field] { checkAmountField(field); });
        return false;
    }
    if (watched == ui->txtDesc && event->type() == QEvent::FocusIn)
        return descriptionFocused();
    if (watched == ui->txtRecvdBy && event->type() == QEvent::KeyPress)
        return receivedByKey(static_cast<QKeyEvent *>(event));
    if (watched == ui->lstProducts && event->type() == QEvent::KeyPress)
        return productListKey(static_cast<QKeyEvent *>(event));
    return ModalScreen::eventFilter(watched, event);
}

// The description is selected whole on entering it, unless a service has
// just filled it and put the caret behind its end.
bool frmReceipt::descriptionFocused() {
    if (skipDescSelect) {
        skipDescSelect = false;
        return false;
    }
    QTimer::singleShot(0, ui->txtDesc, [this] { ui->txtDesc->selectAll(); });
    return false;
}

// Tab from the receiver, the last field of a receipt, goes on to the custom
// fields when there are any, and otherwise along the tab order.
bool frmReceipt::receivedByKey(QKeyEvent *key) {
    if (key->key() != Qt::Key_Tab || key->modifiers() != Qt::NoModifier || !hasCustomFields)
        return false;
    ui->SSTab1->setCurrentWidget(ui->tabCustomFields);
    firstCustomField->setFocus();
    return true;
}
