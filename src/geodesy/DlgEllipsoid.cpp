#include "geodesy/DlgEllipsoid.h"

#include "catalogue/CatalogueName.h"
#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"
#include "geodesy/CustomCatalogue.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

CustomCatalogue::Kind ellipsoidKind() {
    return {EllipsoidKey::name,
            EllipsoidKey::flag,
            &ICoordSystem::getEllipsoid,
            &ICoordSystem::addEllipsoid,
            &ICoordSystem::deleteEllipsoid,
            &ICoordSystem::saveEllipsoids,
            "Ellipsoid_custom.xml",
            QObject::tr("Are you sure you want to delete ellipsoid [%1]?"),
            QObject::tr("has same name as system, whether cover?"),
            QObject::tr("new add ellipsoid name can't same as system!")};
}

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

    nameCombo = CustomCatalogue::createNameBox();
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

    if (mode != CustomCatalogue::ListMode) {
        layout->addWidget(CustomCatalogue::createConfirmButtons(this), 0);
        return;
    }
    layout->addLayout(CustomCatalogue::createListButtons(this, addButton, editButton, deleteButton), 0);
}

void DlgEllipsoid::loadNames() {
    nameCombo->clear();
    CustomCatalogue::fillNames(nameCombo, coordSystem->getEllipsoidNames());
    CustomCatalogue::setNameMode(nameCombo, mode);
    if (mode == CustomCatalogue::ListMode) {
        CustomCatalogue::setShownOnly(aEdit);
        CustomCatalogue::setShownOnly(fEdit);
    }
    if (mode == CustomCatalogue::AddMode || nameCombo->count() == 0) {
        aEdit->clear();
        fEdit->clear();
    }
}

void DlgEllipsoid::_onIndexChanged(int index) {
    const IDictionary* ellipsoid = coordSystem->getEllipsoid(nameCombo->itemText(index).toLocal8Bit().constData());
    if (!ellipsoid)
        return;
    aEdit->setText(CustomCatalogue::text(*ellipsoid, EllipsoidKey::a));
    fEdit->setText(CustomCatalogue::text(*ellipsoid, EllipsoidKey::f));
    if (mode == CustomCatalogue::ListMode) {
        const bool own = CustomCatalogue::isOwn(*ellipsoid, EllipsoidKey::flag);
        editButton->setEnabled(own);
        deleteButton->setEnabled(own);
    }
}

void DlgEllipsoid::_onAdd() {
    DlgEllipsoid dialog(this, coordSystem, CustomCatalogue::AddMode);
    if (dialog.exec() == QDialog::Accepted)
        showAnew(CustomCatalogue::text(*dialog.record, EllipsoidKey::name));
}

void DlgEllipsoid::_onEdit() {
    const QString name = nameCombo->currentText();
    DlgEllipsoid dialog(this, coordSystem, CustomCatalogue::EditMode);
    CustomCatalogue::selectName(dialog.nameCombo, name);
    if (dialog.exec() == QDialog::Accepted)
        showAnew(name);
}

void DlgEllipsoid::showAnew(const QString& name) {
    loadNames();
    CustomCatalogue::selectName(nameCombo, name);
}

void DlgEllipsoid::_onDel() {
    if (CustomCatalogue::removeEntry(this, coordSystem, ellipsoidKind(), nameCombo->currentText()))
        loadNames();
}

void DlgEllipsoid::accept() {
    const QString name = CustomCatalogue::enteredName(nameCombo, mode);
    if (!isCatalogueName(name) || !isPositiveNumber(aEdit->text()) || !isPositiveNumber(fEdit->text())) {
        CustomCatalogue::refuseInput(this);
        return;
    }
    CustomCatalogue::confirm(
        this, coordSystem, ellipsoidKind(), mode, record,
        {{EllipsoidKey::name, name}, {EllipsoidKey::a, aEdit->text()}, {EllipsoidKey::f, fEdit->text()}}, [&] {
            if (mode == CustomCatalogue::EditMode)
                coordSystem->deleteEllipsoid(name.toLocal8Bit().constData());
        });
}
