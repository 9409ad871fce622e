#include "geodesy/CustomCatalogue.h"

#include "catalogue/Dictionary.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/UserFolders.h"
#include "platform/desktop/VornMessageBox.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <cstdlib>

namespace {

void setText(IDictionary* record, const char* key, const QString& text) {
    dic_set_value(record, key, "%s", text.toLocal8Bit().constData());
}

/// Opens a save with an empty path, then writes the file.
void save(ICoordSystem* coordSystem, const CustomCatalogue::Kind& kind) {
    const QString path = UserFolders::documents() + QStringLiteral("/ArvelaGnss/Data/") + kind.fileName;
    (coordSystem->*kind.save)("");
    (coordSystem->*kind.save)(path.toLocal8Bit().constData());
}

/// Whether a new entry may bear the name; the user is asked or told where an entry bears it already.
bool isNewNameFree(QDialog* dialog, ICoordSystem* coordSystem, const CustomCatalogue::Kind& kind, const QString& name) {
    const IDictionary* existing = (coordSystem->*kind.get)(name.toLocal8Bit().constData());
    if (!existing)
        return true;
    if (CustomCatalogue::isOwn(*existing, kind.flagKey))
        return VornMessageBox::information(dialog, QObject::tr("Warning"), kind.coverQuestion);
    VornMessageBox::information_ok(dialog, QObject::tr("Warning"), kind.shippedMessage);
    return false;
}

} // namespace

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

QHBoxLayout* CustomCatalogue::createListButtons(QDialog* dialog, QPushButton*& add, QPushButton*& edit,
                                                QPushButton*& remove) {
    add = new QPushButton(QObject::tr("Add"));
    edit = new QPushButton(QObject::tr("Edit"));
    remove = new QPushButton(QObject::tr("Delete"));
    QObject::connect(add, SIGNAL(clicked()), dialog, SLOT(_onAdd()));
    QObject::connect(edit, SIGNAL(clicked()), dialog, SLOT(_onEdit()));
    QObject::connect(remove, SIGNAL(clicked()), dialog, SLOT(_onDel()));
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {add, edit, remove})
        row->addWidget(button);
    return row;
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

QString CustomCatalogue::text(const IDictionary& record, const char* key) {
    return QString::fromLocal8Bit(record.getValue(key));
}

bool CustomCatalogue::isOwn(const IDictionary& record, const char* flagKey) {
    const char* flag = record.getValue(flagKey);
    return flag && std::atoi(flag) == 0;
}

void CustomCatalogue::refuseInput(QDialog* dialog) {
    VornMessageBox::information_ok(dialog, QObject::tr("information"), QObject::tr("please input correct param!"));
}

void CustomCatalogue::confirm(QDialog* dialog, ICoordSystem* coordSystem, const Kind& kind, int mode,
                              IDictionary* result, const Values& values, const std::function<void()>& beforeAdding) {
    const QString name = values.first().second;
    const DictionaryGuard entry;
    for (const auto& value : values)
        setText(entry.get(), value.first, value.second);
    setText(result, kind.nameKey, name);
    setText(entry.get(), kind.flagKey, QStringLiteral("0"));

    if (mode == AddMode && !isNewNameFree(dialog, coordSystem, kind, name))
        return;
    beforeAdding();
    (coordSystem->*kind.add)(entry.get());
    save(coordSystem, kind);
    dialog->QDialog::accept();
}

bool CustomCatalogue::removeEntry(QDialog* dialog, ICoordSystem* coordSystem, const Kind& kind, const QString& name) {
    if (name.isEmpty() || !VornMessageBox::information(dialog, QObject::tr("Warning"), kind.deleteQuestion.arg(name)))
        return false;
    (coordSystem->*kind.remove)(name.toLocal8Bit().constData());
    save(coordSystem, kind);
    return true;
}
