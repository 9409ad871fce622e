#include "panel/DefinitionTab.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/File.h"
#include "import/WktToCoordParam.h"
#include "panel/FromTextDialog.h"
#include "panel/field/ChoiceBox.h"
#include "panel/field/CopyButton.h"
#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/field/TextField.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/PanelText.h"
#include "panel/record/RecordWkt.h"
#include "panel/record/SystemFileName.h"
#include "panel/registry/IdentityLine.h"
#include "panel/registry/RegistryDialog.h"
#include "panel/save/SaveGroupDialog.h"
#include "platform/desktop/VornMessageBox.h"
#include "platform/projection/IProjectionModule.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QPlainTextEdit* newText(const QString& name) {
    auto* text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAccessibleName(name);
    return text;
}

} // namespace

DefinitionTab::DefinitionTab(ICoordSystem* catalogue, CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent), catalogue(catalogue) {
}

QString DefinitionTab::title() const {
    return PanelText::tr("Definition");
}

void DefinitionTab::build() {
    problemLine = new MessageLine;
    identityLine = new IdentityLine;
    definitionText = newText(PanelText::tr("PROJ definition"));
    definitionText->setFixedHeight(definitionText->fontMetrics().lineSpacing() * 5 + 12);
    copyDefinitionButton = new CopyButton(PanelText::tr("Copy"), PanelText::tr("Copy the PROJ definition"));
    dialectBox = new ChoiceBox;
    dialectBox->setAccessibleName(PanelText::tr("WKT dialect"));
    dialectBox->setAccessibleDescription(dialectBox->accessibleName()); // a box without a label is called by its entry
    dialectBox->addItem(PanelText::tr("WKT 1 (GDAL)"), int(WktDialect::Wkt1Gdal));
    dialectBox->addItem(PanelText::tr("WKT 1 (ESRI)"), int(WktDialect::Wkt1Esri));
    dialectBox->addItem(PanelText::tr("WKT 2:2019"), int(WktDialect::Wkt2_2019));
    // What most programs expect in a .prj file.
    dialectBox->setCurrentIndex(dialectBox->findData(int(WktDialect::Wkt1Esri)));
    identifierBox = new QCheckBox(PanelText::tr("With identifier"));
    copyWktButton = new CopyButton(PanelText::tr("Copy"), PanelText::tr("Copy the WKT"));
    saveButton = new QPushButton(PanelText::tr("Save as .prj"));
    saveGroupButton = new QPushButton(PanelText::tr("Save group..."));
    wktText = newText(PanelText::tr("WKT"));
    wktText->setLineWrapMode(QPlainTextEdit::NoWrap);
    wktText->setMinimumHeight(wktText->fontMetrics().lineSpacing() * 2 + 12);
    remarkLine = new MessageLine;
    remarkTimer = new QTimer(this);
    remarkTimer->setSingleShot(true);

    auto* definitionRow = new QHBoxLayout;
    auto* definitionLabel = new QLabel(definitionText->accessibleName());
    definitionLabel->setBuddy(definitionText);
    definitionRow->addWidget(definitionLabel);
    definitionRow->addStretch();
    definitionRow->addWidget(copyDefinitionButton);
    auto* wktRow = new QHBoxLayout;
    wktRow->addWidget(dialectBox);
    wktRow->addWidget(identifierBox);
    wktRow->addStretch();
    wktRow->addWidget(copyWktButton);
    wktRow->addWidget(saveButton);
    auto* remarkRow = new QHBoxLayout;
    remarkRow->addWidget(remarkLine, 1);
    remarkRow->addWidget(saveGroupButton);
    content = new QWidget;
    auto* texts = new QVBoxLayout(content);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->addLayout(definitionRow);
    texts->addWidget(definitionText);
    texts->addLayout(wktRow);
    texts->addWidget(wktText, 1);
    texts->addLayout(remarkRow);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(problemLine);
    layout->addWidget(identityLine);
    layout->addWidget(content, 1);
    auto* notes = new QGridLayout;
    buildNotes(notes);
    layout->addLayout(notes);
    connect(dialectBox, SIGNAL(activated(int)), this, SLOT(_onDialectChosen()));
    connect(remarkTimer, SIGNAL(timeout()), this, SLOT(_onRemarkTimeout()));
    connect(identityLine, SIGNAL(identified()), this, SLOT(_onIdentified()));
    connect(identifierBox, SIGNAL(toggled(bool)), this, SLOT(_onIdentifierToggled()));
    connect(copyDefinitionButton, SIGNAL(clicked()), this, SLOT(_onCopyDefinition()));
    connect(copyWktButton, SIGNAL(clicked()), this, SLOT(_onCopyWkt()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(_onSave()));
    connect(saveGroupButton, SIGNAL(clicked()), this, SLOT(_onSaveGroup()));
    connect(registryButton, SIGNAL(clicked()), this, SLOT(_onFromRegistry()));
    connect(textButton, SIGNAL(clicked()), this, SLOT(_onFromText()));
}

void DefinitionTab::buildNotes(QGridLayout* grid) {
    const auto addNote = [&](int line, const QString& name, const char* key) {
        auto* edit = new FieldEdit;
        edit->setWide();
        if (isReadOnly())
            edit->setShownOnly();
        auto* label = new QLabel(name);
        label->setBuddy(edit);
        edit->setAccessibleName(name);
        grid->addWidget(label, line, 0);
        grid->addWidget(edit, line, 1);
        auto* field = new TextField(editor(), key, edit);
        connect(field, SIGNAL(edited()), this, SLOT(_onNoteEdited()));
        return field;
    };
    grid->setVerticalSpacing(3);
    source = addNote(0, PanelText::tr("Where from"), CoordParamKey::source);
    registryButton = new QPushButton(PanelText::tr("From registry..."));
    grid->addWidget(registryButton, 0, 2);
    note = addNote(1, PanelText::tr("Remark"), CoordParamKey::remark);
    textButton = new QPushButton(PanelText::tr("From text..."));
    for (QPushButton* const button : {registryButton, textButton})
        button->setEnabled(!isReadOnly());
    grid->addWidget(textButton, 1, 2);
}

void DefinitionTab::showRecord() {
    source->showValue();
    note->showValue();
    const DefinitionState state = DefinitionState::of(record());
    definition = state.definition;
    problemLine->setMessage(state.problem, MessageLine::Tone::Error);
    problemLine->setVisible(!state.problem.isEmpty());
    // Other systems of the group can be saved whatever this one lacks.
    for (QWidget* each : content->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (each != identifierBox)
            each->setEnabled(each == saveGroupButton ? catalogue != nullptr : !definition.isEmpty());
    }
    definitionText->setPlainText(QString::fromUtf8(definition));
    identityLine->identify(record(), definition);
    identityLine->setVisible(!definition.isEmpty());
    showWkt();
}

QByteArray DefinitionTab::wkt(bool indented) const {
    return definition.isEmpty()
               ? QByteArray()
               : recordWkt(record(), WktDialect(dialectBox->currentData().toInt()), indented, identifier());
}

/// EPSG's code of the system that the user says it is; empty without one.
QByteArray DefinitionTab::identifier() const {
    return identifierBox->isChecked() ? identityLine->code() : QByteArray();
}

void DefinitionTab::showWkt() {
    shownWkt = wkt(true);
    wktText->setPlainText(QString::fromUtf8(shownWkt));
    copyWktButton->setEnabled(!shownWkt.isEmpty());
    saveButton->setEnabled(!shownWkt.isEmpty());
    // An import takes longer than all else that a click in the tree costs: what is new is on the screen before.
    remarkTimer->start();
}

void DefinitionTab::_onRemarkTimeout() {
    remarkLine->setMessage(definition.isEmpty() ? QString() : remark(), MessageLine::Tone::Warning);
}

/// What the text does not hold of the record, found by importing it.
QString DefinitionTab::remark() const {
    if (shownWkt.isEmpty())
        return PanelText::tr("This form can't express the system.");
    const QByteArray code = identifier();
    if (!code.isEmpty() && !shownWkt.contains(code + ']') && !shownWkt.contains(code + "\"]"))
        return PanelText::tr("This form can't carry the identifier.");
    return wktRemark(record(), shownWkt);
}

void DefinitionTab::_onDialectChosen() {
    showWkt();
}

/// Whoever ticks the box says that it is this system, so it is for one record only.
void DefinitionTab::_onIdentified() {
    identifierBox->setToolTip(identityLine->codeRemark());
    identifierBox->setEnabled(!identityLine->code().isEmpty());
    if (!identifierBox->isEnabled())
        identifierBox->setChecked(false);
}

void DefinitionTab::_onIdentifierToggled() {
    showWkt();
}

void DefinitionTab::_onCopyDefinition() {
    copyDefinitionButton->copy(definitionText->toPlainText());
}

void DefinitionTab::_onCopyWkt() {
    copyWktButton->copy(wktText->toPlainText());
}

void DefinitionTab::_onSave() {
    QFileDialog dialog(this, PanelText::tr("Save as .prj"), QString(), "*.prj");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("prj");
    dialog.selectFile(SystemFileName::of(record(), "prj"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString error;
    if (!process_replace_file(dialog.selectedFiles().first(), wkt(false), &error))
        VornMessageBox::information_ok(this, PanelText::tr("Warning"),
                                       PanelText::tr("The file can't be written: %1").arg(error));
}

void DefinitionTab::_onSaveGroup() {
    SaveGroupDialog(*catalogue, record(), *dialectBox, this).exec();
}

void DefinitionTab::_onFromRegistry() {
    IProjectionModule* const module = projectionModule();
    if (!module)
        return;
    RegistryDialog dialog(*module, catalogue, this);
    const DictionaryGuard chosen;
    if (dialog.exec() != QDialog::Accepted || !dialog.write(chosen.get()))
        return;
    takeOver(*chosen);
}

void DefinitionTab::_onFromText() {
    FromTextDialog dialog(QString::fromLocal8Bit(record().getValue(CoordParamKey::pastedText)), this);
    if (dialog.exec() == QDialog::Accepted)
        takeOver(dialog.values());
}

void DefinitionTab::takeOver(const IDictionary& values) {
    editor().replaceValues(values);
    showRecord();
    recordChanged();
}

void DefinitionTab::_onNoteEdited() {
    recordChanged();
    identityLine->identify(record(), definition);
}
