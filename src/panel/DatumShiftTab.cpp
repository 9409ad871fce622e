#include "panel/DatumShiftTab.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/ChoiceBox.h"
#include "panel/field/Colours.h"
#include "panel/field/FieldRow.h"
#include "panel/field/MessageLine.h"
#include "panel/field/SearchBox.h"
#include "panel/field/TextField.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DatumFields.h"
#include "panel/record/PanelText.h"
#include "panel/shift/ShiftDialog.h"
#include "panel/shift/ShiftPointsModel.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int none = 0;
constexpr int sevenParameters = 2;

} // namespace

DatumShiftTab::DatumShiftTab(CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent) {
}

QString DatumShiftTab::title() const {
    return PanelText::tr("Datum shift");
}

void DatumShiftTab::build() {
    datumBox = new SearchBox;
    datumField = new TextField(editor(), CoordParamKey::datumName, datumBox);
    kindBox = new ChoiceBox;
    kindRemark = new QLabel;
    convention = new QLabel(
        PanelText::tr("Rotations in the position-vector convention (EPSG 9606, PROJ towgs84). Figures published in the "
                      "coordinate-frame convention (EPSG 9607): type them as they are, then reverse their signs."));
    reverseButton = new QPushButton(PanelText::tr("Reverse rotation signs"));
    reverseMessage = new MessageLine;
    fromPointsButton = new QPushButton(PanelText::tr("From points..."));
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(0);
    auto* datumLabel = new QLabel(PanelText::tr("Datum"));
    datumLabel->setBuddy(datumBox);
    datumBox->setAccessibleName(datumLabel->text());
    datumBox->setToolTip(PanelText::tr("Stands in exported definitions; nothing is computed from it."));
    datumBox->lineEdit()->setPlaceholderText(PanelText::tr("unknown"));
    Colours::setReadablePlaceholder(datumBox->lineEdit());
    datumBox->setReadOnly(isReadOnly());
    grid->addWidget(datumLabel, 0, 0);
    grid->addWidget(datumBox, 0, 1, 1, 3);
    auto* kindLabel = new QLabel(PanelText::tr("Shift to WGS 84"));
    kindLabel->setBuddy(kindBox);
    kindBox->setAccessibleName(kindLabel->text());
    kindBox->addItem(PanelText::tr("None"), none);
    kindBox->addItem(PanelText::tr("Seven parameters (three: the rest 0)"), sevenParameters);
    kindBox->setEnabled(!isReadOnly());
    grid->addWidget(kindLabel, 1, 0);
    auto* kindRow = new QHBoxLayout;
    kindRow->addWidget(kindBox);
    kindRow->addSpacing(6);
    kindRow->addWidget(fromPointsButton);
    kindRow->addStretch(1);
    fromPointsButton->setEnabled(!isReadOnly());
    fromPointsButton->setToolTip(PanelText::tr("Estimates the shift from points known on both datums."));
    grid->addLayout(kindRow, 1, 1, 1, 3);
    grid->setRowMinimumHeight(2, 4);
    kindRemark->setWordWrap(true);
    grid->addWidget(kindRemark, 3, 0, 1, 4);

    constexpr int firstRow = 4;
    int line = firstRow;
    for (const ParamField& field : DatumFields::shift()) {
        auto* row = new FieldRow(editor(), isReadOnly(), grid, line);
        row->setField(&field);
        connect(row, SIGNAL(edited()), this, SLOT(_onEdited()));
        rows.append(row);
        line += 2;
    }
    convention->setWordWrap(true);
    // Beside the rows, where it costs no height.
    convention->setAlignment(Qt::AlignTop);
    grid->addWidget(convention, firstRow, 3, line - firstRow, 1);
    auto* reverseRow = new QHBoxLayout;
    reverseRow->addWidget(reverseButton);
    reverseRow->addWidget(reverseMessage, 1);
    grid->addLayout(reverseRow, line + 1, 0, 1, 4);
    grid->setRowStretch(line + 2, 1);

    connect(datumBox, SIGNAL(listNeeded()), this, SLOT(_onListNeeded()));
    connect(datumField, SIGNAL(edited()), this, SLOT(_onDatumEdited()));
    connect(kindBox, SIGNAL(activated(int)), this, SLOT(_onKindActivated(int)));
    connect(fromPointsButton, SIGNAL(clicked()), this, SLOT(_onFromPointsClicked()));
    connect(reverseButton, SIGNAL(clicked()), this, SLOT(_onReverseClicked()));
}

void DatumShiftTab::showRecord() {
    datumField->showValue();
    showKind();
    for (FieldRow* row : qAsConst(rows))
        row->showValue();
    showRemarks();
}

void DatumShiftTab::showKind() {
    const char* type = record().getValue(CoordParamKey::shiftType);
    const double kind = dictionary_number(record(), CoordParamKey::shiftType, type && *type ? -1.0 : none);
    const bool isSeven = kind == sevenParameters;
    kindBox->setCurrentIndex(isSeven ? 1 : kind == none ? 0 : -1);
    kindBox->setPlaceholderText(QString::fromLocal8Bit(type));
    const auto& fields = DatumFields::shift();
    for (int i = 0; i < rows.size(); ++i)
        rows[i]->setField(isSeven ? &fields[size_t(i)] : nullptr);
    reverseButton->setVisible(isSeven);
    reverseMessage->setVisible(isSeven);

    convention->setVisible(isSeven);
    kindRemark->setVisible(!isSeven);
    kindRemark->setText(kind == none ? PanelText::tr("Without a shift, coordinates on WGS 84 are unknown.")
                                     : PanelText::tr("This kind of shift is unknown here; it is kept as it is."));
}

void DatumShiftTab::showRemarks() {
    double rotation;
    bool turns = false;
    for (FieldRow* row : qAsConst(rows)) {
        if (!row->field())
            continue;
        row->setWarning(DatumFields::warning(*row->field(), record()));
        turns = turns || (row->field()->quantity == Quantity::SmallRotation &&
                          row->field()->read(record(), &rotation) && rotation != 0.0);
    }
    reverseButton->setEnabled(turns && !isReadOnly());
    reverseMessage->setMessage(QString(), MessageLine::Tone::Hint);
}

void DatumShiftTab::_onListNeeded() {
    IProjectionModule* const module = datumBox->count() == 0 ? projectionModule() : nullptr;
    if (!module)
        return;
    QStringList names;
    for (const QByteArray& name : module->registry().datumNames())
        names.append(QString::fromUtf8(name));
    datumBox->setNames(names);
}

void DatumShiftTab::_onDatumEdited() {
    recordChanged();
}

void DatumShiftTab::_onKindActivated(int index) {
    const int kind = kindBox->itemData(index).toInt();
    const char* type = record().getValue(CoordParamKey::shiftType);
    if (type && dictionary_number(record(), CoordParamKey::shiftType, -1.0) == kind)
        return;
    editor().setShift(kind == sevenParameters);
    showRecord();
    recordChanged();
}

void DatumShiftTab::_onReverseClicked() {
    editor().reverseRotations();
    showRecord();
    reverseMessage->setMessage(PanelText::tr("The signs of all three rotations are reversed."),
                               MessageLine::Tone::Hint);
    recordChanged();
}

void DatumShiftTab::_onFromPointsClicked() {
    if (!points)
        points = new ShiftPointsModel(this);
    points->setSystem(ShownSystem::of(record(), nullptr));
    ShiftDialog dialog(*points, record(), this);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const ShiftFromPoints shift = dialog.shift();
    points->setSystem(nullptr); // which the dialog would follow
    if (!isAccepted)
        return;
    shift.apply(editor());
    showRecord();
    recordChanged();
}

void DatumShiftTab::_onEdited() {
    showRemarks();
    recordChanged();
}
