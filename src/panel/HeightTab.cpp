#include "panel/HeightTab.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"
#include "panel/field/MessageLine.h"
#include "panel/field/ResultLabel.h"
#include "panel/field/SearchBox.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/GeoidFile.h"
#include "panel/record/PanelText.h"

#include <QGridLayout>
#include <QLabel>

namespace {

/// A value that the record does not hold, below the name that it has.
void addShownValue(QGridLayout* grid, int line, QLabel* value) {
    auto* label = new QLabel(value->accessibleName());
    label->setBuddy(value);
    value->setFocusPolicy(Qt::StrongFocus);
    grid->addWidget(label, line, 0);
    grid->addWidget(value, line, 1);
}

} // namespace

HeightTab::HeightTab(ICoordSystem* coordSystem, CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent), coordSystem(coordSystem) {
}

QString HeightTab::title() const {
    return PanelText::tr("Height", "what a system says of heights");
}

void HeightTab::build() {
    geoidBox = new SearchBox;
    message = new MessageLine;
    file = new ResultLabel(PanelText::tr("Model file"));
    fileMessage = new MessageLine;
    ellipsoid = new ResultLabel(PanelText::tr("Model ellipsoid"));
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(3);
    auto* label = new QLabel(PanelText::tr("Geoid model"));
    label->setBuddy(geoidBox);
    geoidBox->setAccessibleName(label->text());
    geoidBox->setReadOnly(isReadOnly());
    grid->addWidget(label, 0, 0);
    grid->addWidget(geoidBox, 0, 1);
    message->setField(geoidBox);
    grid->addWidget(message, 1, 0, 1, 2);
    addShownValue(grid, 2, file);
    fileMessage->setField(file);
    grid->addWidget(fileMessage, 3, 0, 1, 2);
    addShownValue(grid, 4, ellipsoid);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);

    connect(geoidBox, SIGNAL(listNeeded()), this, SLOT(_onListNeeded()));
    connect(geoidBox, SIGNAL(chosen(QString)), this, SLOT(_onChosen(QString)));
}

void HeightTab::showRecord() {
    _onListNeeded();
    const QByteArray name = record().getValue(CoordParamKey::geoidName);
    geoidBox->setShownName(name.isEmpty() ? PanelText::tr("(none)") : QString::fromLocal8Bit(name));

    const IDictionary* geoid = name.isEmpty() ? nullptr : coordSystem->getGeoid(name.constData());
    const QString unknown = QString(QChar(0x2013));
    const QString fileName = geoid ? QString::fromLocal8Bit(geoid->getValue(GeoidKey::file)) : QString();
    file->setText(fileName.isEmpty() ? unknown : fileName);
    fileMessage->setMessage(geoid ? GeoidFile::problem(fileName) : QString(), MessageLine::Tone::Warning);
    ellipsoid->setText(geoid ? QString::fromLocal8Bit(geoid->getValue(GeoidKey::ellipsoid)) : unknown);

    QString remark;
    if (!name.isEmpty() && !geoid)
        remark = PanelText::tr("Not in the list of geoid models.");
    else if (geoid && QByteArray(geoid->getValue(GeoidKey::ellipsoid)) !=
                          QByteArray(record().getValue(CoordParamKey::ellipsoidName)))
        remark = PanelText::tr("The model refers to another ellipsoid than the system.");
    message->setMessage(remark, MessageLine::Tone::Warning);
}

void HeightTab::_onListNeeded() {
    const QByteArray names = coordSystem->getGeoidNames();
    if (geoidBox->count() > 0 && names == listedNames)
        return;
    listedNames = names;
    geoidBox->setNames(QStringList(PanelText::tr("(none)")) +
                       QString::fromLocal8Bit(names).split(',', Qt::SkipEmptyParts));
}

void HeightTab::_onChosen(const QString& name) {
    editor().setText(CoordParamKey::geoidName, name == PanelText::tr("(none)") ? QString() : name);
    showRecord();
    recordChanged();
}
