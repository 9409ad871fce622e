#include "panel/EllipsoidTab.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"
#include "panel/field/FieldEdit.h"
#include "panel/field/FieldRow.h"
#include "panel/field/MessageLine.h"
#include "panel/field/SearchBox.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DatumFields.h"
#include "panel/record/PanelText.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

namespace {

FieldEdit* addShownValue(QGridLayout* grid, int line, const QString& name, const QString& unit) {
    auto* value = new FieldEdit;
    value->setShownOnly();
    auto* label = new QLabel(name);
    label->setBuddy(value);
    value->setAccessibleName(name);
    grid->addWidget(label, line, 0);
    grid->addWidget(value, line, 1);
    grid->addWidget(new QLabel(unit), line, 2);
    grid->addWidget(new MessageLine, line + 1, 1); // keeps the rows' distance
    return value;
}

} // namespace

EllipsoidTab::EllipsoidTab(ICoordSystem* coordSystem, CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent), coordSystem(coordSystem) {
}

QString EllipsoidTab::title() const {
    return PanelText::tr("Ellipsoid");
}

void EllipsoidTab::build() {
    nameBox = new SearchBox;
    nameMessage = new MessageLine;
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(1);
    auto* nameLabel = new QLabel(PanelText::tr("Ellipsoid"));
    nameLabel->setBuddy(nameBox);
    nameBox->setAccessibleName(nameLabel->text());
    nameBox->setReadOnly(isReadOnly());
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(nameBox, 0, 1, 1, 3);
    nameMessage->setField(nameBox);
    grid->addWidget(nameMessage, 1, 0, 1, 4);

    semiMajorAxis = new FieldRow(editor(), isReadOnly(), grid, 2);
    semiMajorAxis->setField(&DatumFields::semiMajorAxis());
    inverseFlattening = new FieldRow(editor(), isReadOnly(), grid, 4);
    inverseFlattening->setField(&DatumFields::inverseFlattening());
    semiMinorAxis = addShownValue(grid, 6, PanelText::tr("Semi-minor axis b"), "m");
    eccentricity = addShownValue(grid, 8, PanelText::tr("Eccentricity e"), QString());
    grid->setRowStretch(10, 1);

    connect(nameBox, SIGNAL(listNeeded()), this, SLOT(_onListNeeded()));
    connect(nameBox, SIGNAL(chosen(QString)), this, SLOT(_onChosen(QString)));
    connect(semiMajorAxis, SIGNAL(edited()), this, SLOT(_onEdited()));
    connect(inverseFlattening, SIGNAL(edited()), this, SLOT(_onEdited()));
}

void EllipsoidTab::showRecord() {
    _onListNeeded();
    nameBox->setShownName(QString::fromLocal8Bit(record().getValue(CoordParamKey::ellipsoidName)));
    semiMajorAxis->showValue();
    inverseFlattening->showValue();
    showDerived();
}

void EllipsoidTab::_onListNeeded() {
    const QByteArray names = coordSystem->getEllipsoidNames();
    if (names == listedNames)
        return;
    listedNames = names;
    nameBox->setNames(QString::fromLocal8Bit(names).split(',', Qt::SkipEmptyParts));
    nameMessage->setMessage(nameRemark(), MessageLine::Tone::Warning);
}

void EllipsoidTab::_onChosen(const QString& name) {
    if (const IDictionary* ellipsoid = coordSystem->getEllipsoid(name.toLocal8Bit().constData())) {
        editor().setEllipsoid(*ellipsoid);
        recordChanged();
    }
    showRecord();
}

void EllipsoidTab::_onEdited() {
    showDerived();
    recordChanged();
}

void EllipsoidTab::showDerived() {
    semiMajorAxis->setWarning(DatumFields::warning(DatumFields::semiMajorAxis(), record()));
    inverseFlattening->setWarning(DatumFields::warning(DatumFields::inverseFlattening(), record()));
    nameMessage->setMessage(nameRemark(), MessageLine::Tone::Warning);

    double a, inverse;
    const bool isSound =
        DatumFields::semiMajorAxis().isSound(record()) && DatumFields::inverseFlattening().isSound(record()) &&
        DatumFields::semiMajorAxis().read(record(), &a) && DatumFields::inverseFlattening().read(record(), &inverse);
    if (!isSound) {
        semiMinorAxis->clear();
        eccentricity->clear();
        return;
    }
    // b = a (1 - f), e² = f (2 - f): Snyder 1987, Map Projections: A Working Manual (USGS PP 1395), p. 13.
    const double flattening = inverse == 0.0 ? 0.0 : 1.0 / inverse;
    semiMinorAxis->setText(QString::number(a * (1.0 - flattening), 'f', 6));
    eccentricity->setText(QString::number(std::sqrt(flattening * (2.0 - flattening)), 'f', 12));
}

QString EllipsoidTab::nameRemark() const {
    const char* name = record().getValue(CoordParamKey::ellipsoidName);
    if (!name || !*name)
        return PanelText::tr("Choose an ellipsoid.");
    const IDictionary* ellipsoid = coordSystem->getEllipsoid(name);
    if (!ellipsoid)
        return PanelText::tr("Not in the list of ellipsoids.");
    // A millimetre on the ground; a record's texts have six decimals.
    const double a = dictionary_number(record(), CoordParamKey::ellipsoidA, 0.0);
    const double inverse = dictionary_number(record(), CoordParamKey::ellipsoidF, 0.0);
    const bool same = std::fabs(a - dictionary_number(*ellipsoid, EllipsoidKey::a, 0.0)) < 1e-3 &&
                      std::fabs(inverse - dictionary_number(*ellipsoid, EllipsoidKey::f, 0.0)) < 1e-5;
    return same ? QString() : PanelText::tr("The figures differ from the list's ellipsoid of this name.");
}
