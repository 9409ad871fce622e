#include "platform/desktop/VornMessageBox.h"

#include <QMessageBox>

namespace {

int show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton silentAnswer) {
    QMessageBox box(icon, title, text, buttons, parent);
    // Names come from the user and from files: a "<" in one must stay a "<".
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(silentAnswer);
    box.setEscapeButton(silentAnswer);
    return box.exec();
}

} // namespace

int VornMessageBox::information(QWidget* parent, const QString& title, const QString& text) {
    return show(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
                   QMessageBox::Yes
               ? 1
               : 0;
}

void VornMessageBox::information_ok(QWidget* parent, const QString& title, const QString& text) {
    show(parent, QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
}
