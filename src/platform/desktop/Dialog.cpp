#include "platform/desktop/Dialog.h"

Dialog::Dialog(QWidget* parent) : QDialog(parent) {
    // No dialog of the tool has context help for the title bar's "?".
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}
