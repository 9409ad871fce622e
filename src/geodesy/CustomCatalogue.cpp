#include "geodesy/CustomCatalogue.h"

#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStandardPaths>

#include <cstdlib>

QComboBox* CustomCatalogue::createNameBox() {
    auto* box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(24);
    return box;
}

void CustomCatalogue::setShownOnly(QLineEdit* edit) {
    edit->setReadOnly(true);
    QPalette colors = edit->palette();
    colors.setColor(QPalette::Base, colors.color(QPalette::Window));
    edit->setPalette(colors);
}

QDialogButtonBox* CustomCatalogue::createConfirmButtons(QDialog* dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, SIGNAL(accepted()), dialog, SLOT(accept()));
    QObject::connect(buttons, SIGNAL(rejected()), dialog, SLOT(reject()));
    return buttons;
}

void CustomCatalogue::fillNames(QComboBox* box, const char* names) {
    box->addItems(QString::fromLocal8Bit(names).split(QLatin1Char(','), Qt::SkipEmptyParts));
}

void CustomCatalogue::setNameMode(QComboBox* box, int mode) {
    if (mode == EditMode)
        box->setEnabled(false);
    if (mode != AddMode)
        return;
    box->setEditable(true);
    // The name stays what is typed: it is not completed to another one, it does not join the list, and typing the name
    // of an entry does not overwrite with that entry's values what was typed before. Only choosing from the list does.
    box->setCompleter(nullptr);
    box->setInsertPolicy(QComboBox::NoInsert);
    QObject::disconnect(box->lineEdit(), SIGNAL(editingFinished()), box, nullptr);
    // No item is current, so that choosing the first one is a change as well.
    const QSignalBlocker blocker(box);
    box->setCurrentIndex(-1);
    box->clearEditText();
}

void CustomCatalogue::selectName(QComboBox* box, const QString& name) {
    const int index = box->findText(name);
    if (index >= 0)
        box->setCurrentIndex(index);
}

QString CustomCatalogue::enteredName(const QComboBox* box, int mode) {
    return mode == AddMode ? box->lineEdit()->text() : box->currentText();
}

bool CustomCatalogue::isValidName(const QString& name) {
    return !name.isEmpty() && !name.contains(QLatin1Char(','));
}

QString CustomCatalogue::text(const IDictionary& record, const char* key) {
    return QString::fromLocal8Bit(record.getValue(key));
}

void CustomCatalogue::setText(IDictionary* record, const char* key, const QString& text) {
    dic_set_value(record, key, "%s", text.toLocal8Bit().constData());
}

bool CustomCatalogue::isOwn(const IDictionary& record, const char* flagKey) {
    const char* flag = record.getValue(flagKey);
    return flag && std::atoi(flag) == 0;
}

void CustomCatalogue::save(ICoordSystem* coordSystem, void (ICoordSystem::*operation)(const char* path),
                           const QString& fileName) {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                         QStringLiteral("/ArvelaGnss/Data/") + fileName;
    (coordSystem->*operation)("");
    (coordSystem->*operation)(path.toLocal8Bit().constData());
}
