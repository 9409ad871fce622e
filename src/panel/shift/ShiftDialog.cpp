#include "panel/shift/ShiftDialog.h"

#include "panel/field/ChoiceBox.h"
#include "panel/field/Colours.h"
#include "panel/field/ResultLabel.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/shift/ShiftPointsModel.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using Kind = ShiftFromPoints::Kind;

namespace {

/// Without a minus before zeros.
QString fixed(double value, int decimals) {
    const double unit = std::pow(10.0, decimals);
    return QString::number(std::round(value * unit) / unit + 0.0, 'f', decimals);
}

/// "598.100 ± 0.300 m".
QString valueText(const ParamField& field, double value, double deviation) {
    const int decimals = field.quantity == Quantity::Length ? 3 : 5;
    QString text = fixed(value, decimals);
    if (!std::isnan(deviation))
        text += " ± " + fixed(deviation, decimals);
    const QString unit = field.unitText(AngleNotation::DecimalDegrees);
    return text + (field.quantity == Quantity::SmallRotation ? "" : " ") + unit;
}

void addChoice(QHBoxLayout* row, const QString& label, ChoiceBox* box, const QStringList& choices) {
    auto* title = new QLabel(label);
    title->setBuddy(box);
    box->setAccessibleName(label);
    box->addItems(choices);
    row->addWidget(title);
    row->addWidget(box);
    row->addSpacing(12);
}

} // namespace

ShiftDialog::ShiftDialog(ShiftPointsModel& points, const IDictionary& record, QWidget* parent)
    : Dialog(parent), points(points), record(record) {
    setWindowTitle(PanelText::tr("Shift from points"));
    auto* layout = new QVBoxLayout(this);
    buildChoices(layout);
    buildTable(layout);
    buildResult(layout);
    connect(&points, SIGNAL(pointsChanged()), this, SLOT(_onPointsChanged()));
    resize(1200, 600);
    table->setFocus();
    showResult();
}

void ShiftDialog::buildChoices(QVBoxLayout* layout) {
    ownBox = new ChoiceBox;
    wgs84Box = new ChoiceBox;
    kindBox = new ChoiceBox;
    auto* row = new QHBoxLayout;
    addChoice(row, PanelText::tr("Own datum"), ownBox,
              {PanelText::tr("Latitude, longitude, height"), PanelText::tr("Easting, northing, height")});
    addChoice(row, PanelText::tr("WGS 84"), wgs84Box,
              {PanelText::tr("Latitude, longitude, height"), PanelText::tr("Geocentric X, Y, Z")});
    addChoice(row, PanelText::tr("Parameters"), kindBox, {PanelText::tr("Seven"), PanelText::tr("Three")});
    ownBox->setCurrentIndex(int(points.ownForm()));
    wgs84Box->setCurrentIndex(int(points.wgs84Form()));
    row->addStretch(1);
    layout->addLayout(row);
    for (ChoiceBox* box : {ownBox, wgs84Box})
        connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(_onFormChosen()));
    connect(kindBox, SIGNAL(currentIndexChanged(int)), this, SLOT(_onPointsChanged()));
}

void ShiftDialog::buildTable(QVBoxLayout* layout) {
    table = new QTableView;
    table->setModel(&points);
    table->setAccessibleName(PanelText::tr("Points"));
    table->setToolTip(PanelText::tr("Points are typed, or pasted as lines: name and three numbers on either datum."));
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setHighlightSections(false);
    table->setTabKeyNavigation(false);
    const int digit = table->fontMetrics().horizontalAdvance('0');
    for (int column = 0; column < ShiftPointsModel::ColumnCount; ++column)
        table->setColumnWidth(column, digit * (column < ShiftPointsModel::Before ? 14 : 10));
    makeRoomForHeadings();
    layout->addWidget(table, 1);
    auto* row = new QHBoxLayout;
    auto* pasteButton = new QPushButton(PanelText::tr("Paste"));
    auto* removeButton = new QPushButton(PanelText::tr("Remove"));
    auto* clearButton = new QPushButton(PanelText::tr("Clear"));
    for (QPushButton* button : {pasteButton, removeButton, clearButton}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch(1);
    layout->addLayout(row);
    connect(pasteButton, SIGNAL(clicked()), this, SLOT(_onPaste()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(_onRemove()));
    connect(clearButton, SIGNAL(clicked()), this, SLOT(_onClear()));
}

void ShiftDialog::buildResult(QVBoxLayout* layout) {
    auto* grid = new QGridLayout;
    const auto& fields = DatumFields::shift();
    for (int i = 0; i < int(values.size()); ++i) {
        auto* label = new QLabel(fields[std::size_t(i)].labelText());
        QLabel*& value = values[std::size_t(i)];
        value = new ResultLabel(label->text());
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance("-0000.00000 ± 000.00000 ppm"));
        grid->addWidget(label, i, 0);
        grid->addWidget(value, i, 1);
    }
    summaryLabel = new ResultLabel(PanelText::tr("Summary"));
    adviceLabel = new ResultLabel(PanelText::tr("Advice"));
    auto* texts = new QVBoxLayout;
    for (QLabel* label : {summaryLabel, adviceLabel}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        texts->addWidget(label);
    }
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addLayout(grid);
    row->addSpacing(12);
    row->addLayout(texts, 1);
    layout->addLayout(row);
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(PanelText::tr("Take over"));
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

void ShiftDialog::makeRoomForHeadings() {
    for (int column = 0; column < ShiftPointsModel::ColumnCount; ++column)
        table->setColumnWidth(column,
                              std::max(table->columnWidth(column), table->horizontalHeader()->sectionSizeHint(column)));
}

void ShiftDialog::_onFormChosen() {
    points.setForms(ShiftPointsModel::OwnForm(ownBox->currentIndex()),
                    ShiftPointsModel::Wgs84Form(wgs84Box->currentIndex()));
    makeRoomForHeadings();
}

void ShiftDialog::_onPointsChanged() {
    showResult();
}

void ShiftDialog::showResult() {
    solution = ShiftFromPoints::solve(points.points(), kindBox->currentIndex() == 0 ? Kind::Seven : Kind::Three);
    const bool isSolved = solution.problem().isEmpty();
    const auto before = ShiftFromPoints::ofRecord(record);
    points.showResiduals(before ? &*before : nullptr, isSolved ? &solution.parameters() : nullptr, solution.outliers());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isEstimated = i < std::size_t(solution.kind());
        values[i]->setText(!isSolved ? QString()
                           : isEstimated
                               ? valueText(DatumFields::shift()[i], solution.parameters()[i], solution.deviations()[i])
                               : QStringLiteral("0"));
    }
    summaryLabel->setText(summary());
    adviceLabel->setText(isSolved ? solution.advice() : solution.problem());
    QPalette colours;
    colours.setColor(QPalette::WindowText, Colours::warning(colours));
    adviceLabel->setPalette(colours);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(isSolved);
}

QString ShiftDialog::summary() const {
    QStringList parts;
    if (solution.problem().isEmpty()) {
        parts << (std::isnan(solution.unitWeight())
                      ? PanelText::tr("Just enough points: nothing is left over to tell how good the shift is.")
                      : PanelText::tr("Standard deviation of a coordinate: %1 m (redundancy %2).")
                            .arg(NumberText::rounded(solution.unitWeight(), 4))
                            .arg(solution.redundancy()));
        QStringList strongest;
        for (const auto& found : solution.correlations().mid(0, 3)) {
            const auto name = [](int i) { return DatumFields::shift()[std::size_t(i)].labelText(); };
            strongest << PanelText::tr("%1 with %2 %3")
                             .arg(name(found.first), name(found.second), QString::number(found.value, 'f', 3));
        }
        if (!strongest.isEmpty())
            parts << PanelText::tr("Largest correlations: %1.").arg(strongest.join(", "));
    }
    if (const int unusable = points.unusableCount())
        parts << PanelText::tr("Lines that can't be used: %1.").arg(unusable);
    return PanelText::joined(parts);
}

void ShiftDialog::_onPaste() {
    const QModelIndex current = table->currentIndex();
    const int column = current.isValid() && current.column() < ShiftPointsModel::Before ? current.column() : 0;
    points.paste(QApplication::clipboard()->text(), current.isValid() ? current.row() : 0, column);
    table->setFocus();
}

void ShiftDialog::_onRemove() {
    points.removeRowsOf(table->selectionModel()->selectedIndexes());
    table->setFocus();
}

void ShiftDialog::_onClear() {
    points.clear();
    table->setFocus();
}

void ShiftDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste) && table->hasFocus())
        _onPaste();
    else if (event->matches(QKeySequence::Undo) && table->hasFocus())
        points.undo();
    else if (event->matches(QKeySequence::Delete) && table->hasFocus())
        _onRemove();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && table->hasFocus())
        editCell(); // rather than press the default button
    else
        Dialog::keyPressEvent(event);
}

void ShiftDialog::editCell() {
    const QModelIndex cell = table->currentIndex();
    if (points.flags(cell) & Qt::ItemIsEditable)
        table->edit(cell);
}
