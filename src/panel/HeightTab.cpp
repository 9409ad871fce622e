#include "panel/HeightTab.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"
#include "panel/field/MessageLine.h"
#include "panel/field/SearchBox.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/GeoidFile.h"
#include "panel/record/PanelText.h"

#include <QGridLayout>
#include <QLabel>

HeightTab::HeightTab(ICoordSystem* coordSystem, CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent), coordSystem(coordSystem) {
}

QString HeightTab::title() const {
    return PanelText::tr("Height");
}

void HeightTab::build() {
    geoidBox = new SearchBox;
    message = new MessageLine;
    file = new QLabel;
    fileMessage = new MessageLine;
    ellipsoid = new QLabel;
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
    grid->addWidget(new QLabel(PanelText::tr("Model file")), 2, 0);
    grid->addWidget(file, 2, 1);
    fileMessage->setField(file);
    grid->addWidget(fileMessage, 3, 0, 1, 2);
    grid->addWidget(new QLabel(PanelText::tr("Model ellipsoid")), 4, 0);
    grid->addWidget(ellipsoid, 4, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    for (QLabel* value : {file, ellipsoid})
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);

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
