#include "geodesy/DlgEllipsoid.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSystem.h"
#include "geodesy/CustomCatalogue.h"
#include "platform/desktop/VornMessageBox.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

using namespace CustomCatalogue;

namespace {

/// A field for a number in the C locale, whatever the system's is. A decimal comma can be typed, so that it is seen and
/// refused instead of swallowed. What lies above the top can be typed too: in scientific notation the validator takes
/// it for unfinished, not for wrong.
QLineEdit* createNumberEdit() {
    auto* edit = new QLineEdit;
    auto* validator = new QDoubleValidator(0.0, 65535.0, 12, edit);
    validator->setLocale(QLocale::c());
    edit->setValidator(validator);
    return edit;
}

/// Whether `text` is a number (C locale) that an axis or an inverse flattening can have. Infinity and NaN, which
/// QString::toDouble() reads, are none.
bool isPositiveNumber(const QString& text) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) && value > 0.0;
}

} // namespace

DlgEllipsoid::DlgEllipsoid(QWidget* parent, ICoordSystem* coordSystem, int mode)
    : Dialog(parent), coordSystem(coordSystem), mode(mode), record(dictionary_get_instance(0)) {
    setMinimumSize(280, 160);
    setWindowTitle(QObject::tr("Edit Ellipsoid"));
    initUi();
    loadNames();
}

DlgEllipsoid::~DlgEllipsoid() {
    dictionary_release_instance(&record);
}

void DlgEllipsoid::initUi() {
    auto* nameLabel = new QLabel(QObject::tr("Ellipsoid Name"));
    auto* aLabel = new QLabel(QObject::tr("ellipsoid a(m)"));
    auto* fLabel = new QLabel(QObject::tr("ellipsoid f"));
    auto* labels = new QVBoxLayout;
    labels->addWidget(nameLabel);
    labels->addWidget(aLabel);
    labels->addWidget(fLabel);

    nameCombo = createNameBox();
    connect(nameCombo, SIGNAL(currentIndexChanged(int)), this, SLOT(_onIndexChanged(int)));
    aEdit = createNumberEdit();
    fEdit = createNumberEdit();
    auto* fields = new QVBoxLayout;
    fields->addWidget(nameCombo);
    fields->addWidget(aEdit);
    fields->addWidget(fEdit);

    nameLabel->setBuddy(nameCombo);
    aLabel->setBuddy(aEdit);
    fLabel->setBuddy(fEdit);

    auto* columns = new QHBoxLayout;
    columns->addLayout(labels, 0);
    columns->addLayout(fields, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);

    if (mode != ListMode) {
        layout->addWidget(createConfirmButtons(this), 0);
        return;
    }
    addButton = new QPushButton(QObject::tr("Add"));
    editButton = new QPushButton(QObject::tr("Edit"));
    deleteButton = new QPushButton(QObject::tr("Delete"));
    connect(addButton, SIGNAL(clicked()), this, SLOT(_onAdd()));
    connect(editButton, SIGNAL(clicked()), this, SLOT(_onEdit()));
    connect(deleteButton, SIGNAL(clicked()), this, SLOT(_onDel()));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(editButton);
    buttons->addWidget(deleteButton);
    layout->addLayout(buttons, 0);
}

void DlgEllipsoid::loadNames() {
    nameCombo->clear();
    fillNames(nameCombo, coordSystem->getEllipsoidNames());
    setNameMode(nameCombo, mode);
    if (mode == ListMode) {
        setShownOnly(aEdit);
        setShownOnly(fEdit);
    }
    if (mode == AddMode || nameCombo->count() == 0) {
        aEdit->clear();
        fEdit->clear();
    }
}

void DlgEllipsoid::save() {
    CustomCatalogue::save(coordSystem, &ICoordSystem::saveEllipsoids, "Ellipsoid_custom.xml");
}

void DlgEllipsoid::_onIndexChanged(int index) {
    const IDictionary* ellipsoid = coordSystem->getEllipsoid(nameCombo->itemText(index).toLocal8Bit().constData());
    if (!ellipsoid)
        return;
    aEdit->setText(text(*ellipsoid, EllipsoidKey::a));
    fEdit->setText(text(*ellipsoid, EllipsoidKey::f));
    if (mode == ListMode) {
        const bool own = isOwn(*ellipsoid, EllipsoidKey::flag);
        editButton->setEnabled(own);
        deleteButton->setEnabled(own);
    }
}

void DlgEllipsoid::_onAdd() {
    DlgEllipsoid dialog(this, coordSystem, AddMode);
    if (dialog.exec() != QDialog::Accepted)
        return;
    loadNames();
    selectName(nameCombo, text(*dialog.record, EllipsoidKey::name));
}

void DlgEllipsoid::_onEdit() {
    const QString name = nameCombo->currentText();
    DlgEllipsoid dialog(this, coordSystem, EditMode);
    selectName(dialog.nameCombo, name);
    if (dialog.exec() != QDialog::Accepted)
        return;
    loadNames();
    selectName(nameCombo, name);
}

void DlgEllipsoid::_onDel() {
    const QString name = nameCombo->currentText();
    if (name.isEmpty())
        return;
    const QString question = QObject::tr("Are you sure you want to delete ellipsoid [%1]?").arg(name);
    if (!VornMessageBox::information(this, QObject::tr("Warning"), question))
        return;
    coordSystem->deleteEllipsoid(name.toLocal8Bit().constData());
    save();
    loadNames();
}

void DlgEllipsoid::accept() {
    const QString name = enteredName(nameCombo, mode);
    if (!isValidName(name) || !isPositiveNumber(aEdit->text()) || !isPositiveNumber(fEdit->text())) {
        VornMessageBox::information_ok(this, QObject::tr("information"), QObject::tr("please input correct param!"));
        return;
    }

    const DictionaryGuard ellipsoid;
    setText(ellipsoid.get(), EllipsoidKey::name, name);
    setText(ellipsoid.get(), EllipsoidKey::a, aEdit->text());
    setText(ellipsoid.get(), EllipsoidKey::f, fEdit->text());
    setText(record, EllipsoidKey::name, name);
    setText(ellipsoid.get(), EllipsoidKey::flag, "0");

    if (mode == AddMode && !isNewNameFree(name))
        return;
    if (mode == EditMode)
        coordSystem->deleteEllipsoid(name.toLocal8Bit().constData());
    coordSystem->addEllipsoid(ellipsoid.get());
    save();
    QDialog::accept();
}

bool DlgEllipsoid::isNewNameFree(const QString& name) {
    const IDictionary* existing = coordSystem->getEllipsoid(name.toLocal8Bit().constData());
    if (!existing)
        return true;
    if (isOwn(*existing, EllipsoidKey::flag))
        return VornMessageBox::information(this, QObject::tr("Warning"),
                                           QObject::tr("has same name as system, whether cover?"));
    VornMessageBox::information_ok(this, QObject::tr("Warning"),
                                   QObject::tr("new add ellipsoid name can't same as system!"));
    return false;
}
