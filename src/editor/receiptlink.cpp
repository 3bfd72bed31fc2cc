#include "app/screenlinks.h"
#include "editor/frmreceipt.h"

bool ScreenLinks::openReceipt(QWidget *parent, qint32 receiptID) {
    frmReceipt screen(parent);
    screen.receiptID = receiptID;
    screen.exec();
    return screen.receiptChanged;
}
