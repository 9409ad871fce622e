#include "panel/ProjectionTab.h"

#include "panel/field/AngleNotationBox.h"
#include "panel/field/ChoiceBox.h"
#include "panel/field/FieldRow.h"
#include "panel/field/MessageLine.h"
#include "panel/record/AngleText.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

ProjectionTab::ProjectionTab(CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent) {
}

QString ProjectionTab::title() const {
    return PanelText::tr("Projection");
}

void ProjectionTab::build() {
    problemLine = new MessageLine;
    methodBox = new ChoiceBox;
    notationBox = new AngleNotationBox;
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(1);
    // The line for a problem takes the place of the upper margin, so that the forms of all tabs start level.
    const QMargins margins = grid->contentsMargins();
    grid->setContentsMargins(margins.left(), 0, margins.right(), margins.bottom());
    grid->addWidget(problemLine, 0, 0, 1, 4);
    addMethod(grid, 1);
    grid->setRowMinimumHeight(2, 10);
    const int line = addRows(grid, 3);
    grid->setRowStretch(line, 1);
    addNotation(grid, line + 1);
}

void ProjectionTab::addMethod(QGridLayout* grid, int line) {
    auto* label = new QLabel(PanelText::tr("Method"));
    label->setBuddy(methodBox);
    methodBox->setAccessibleName(PanelText::tr("Projection method"));
    methodBox->setPlaceholderText(PanelText::tr("Choose the method"));
    methodBox->setEnabled(!isReadOnly());
    methodBox->setMaxVisibleItems(20);
    methodBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const ProjectionFields& projection : ProjectionFields::all())
        methodBox->addItem(projection.nameText(), int(projection.method));
    connect(methodBox, SIGNAL(activated(int)), this, SLOT(_onMethodActivated(int)));
    grid->addWidget(label, line, 0);
    grid->addWidget(methodBox, line, 1, 1, 3);
}

/// As many rows as the method with the most fields needs; gives the first free line.
int ProjectionTab::addRows(QGridLayout* grid, int line) {
    size_t most = 0;
    int widest = 0; // of all methods' labels, so that the fields stand still when the method changes
    for (const ProjectionFields& projection : ProjectionFields::all()) {
        most = std::max(most, projection.fields.size());
        for (const ParamField& field : projection.fields)
            widest = std::max(widest, fontMetrics().horizontalAdvance(field.labelText()));
    }
    grid->setColumnMinimumWidth(0, widest);
    for (size_t i = 0; i < most; ++i, line += 2) {
        auto* row = new FieldRow(editor(), isReadOnly(), grid, line);
        connect(row, SIGNAL(edited()), this, SLOT(_onEdited()));
        rows.append(row);
    }
    return line;
}

void ProjectionTab::addNotation(QGridLayout* grid, int line) {
    auto* label = new QLabel(PanelText::tr("Show angles in"));
    label->setBuddy(notationBox);
    notationBox->setAccessibleName(label->text());
    notationBox->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(notationBox, SIGNAL(notationChosen()), this, SLOT(_onNotationChosen()));
    grid->addWidget(label, line, 0);
    grid->addWidget(notationBox, line, 1, 1, 3);
}

void ProjectionTab::showRecord() {
    notationBox->showNotation();
    showMethod();
    for (int i = 0; i < rows.size(); ++i) {
        const bool used = shownProjection && size_t(i) < shownProjection->fields.size();
        rows[i]->setField(used ? &shownProjection->fields[size_t(i)] : nullptr);
        rows[i]->showValue();
    }
    showAdvice();
}

void ProjectionTab::showMethod() {
    shownProjection = ProjectionFields::ofRecord(record());
    // The code 0 also stands where no method fits; then there is nothing to show before the user has chosen one.
    if (ProjectionAdvice::fitsNoMethod(record()))
        shownProjection = nullptr;
    methodBox->setCurrentIndex(shownProjection ? methodBox->findData(int(shownProjection->method)) : -1);
}

void ProjectionTab::showAdvice() {
    const QString problem = ProjectionAdvice::problem(record());
    problemLine->setMessage(problem, MessageLine::Tone::Error);
    for (FieldRow* row : qAsConst(rows)) {
        if (row->field())
            row->setWarning(editor().isToChoose(*row->field())
                                ? PanelText::tr("Still to choose.")
                                : ProjectionAdvice::warning(*shownProjection, *row->field(), record()));
    }
}

void ProjectionTab::_onMethodActivated(int index) {
    const auto method = ProjectionMethod(methodBox->itemData(index).toInt());
    if (shownProjection && shownProjection->method == method)
        return;
    editor().setMethod(method);
    showRecord();
    recordChanged();
}

void ProjectionTab::_onNotationChosen() {
    for (FieldRow* row : qAsConst(rows))
        row->showValue();
    Q_EMIT angleNotationChanged();
}

void ProjectionTab::_onEdited() {
    // A scale factor makes the one transverse Mercator method of the other; their fields are the same.
    showMethod();
    // And the origin says on which side of the equator a standard parallel lies.
    for (FieldRow* row : qAsConst(rows)) {
        if (row != sender())
            row->showValue();
    }
    showAdvice();
    recordChanged();
}
