#include "panel/check/PointColumnsDialog.h"

#include "panel/field/ChoiceBox.h"
#include "panel/record/PanelText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr std::size_t shownLines = 8;

void fillWithColumns(ChoiceBox* box) {
    box->addItem(PanelText::tr("(not used)"), int(PointColumn::None));
    box->addItem(PanelText::tr("Name"), int(PointColumn::Name));
    box->addItem(PanelText::tr("Latitude"), int(PointColumn::Latitude));
    box->addItem(PanelText::tr("Longitude"), int(PointColumn::Longitude));
    box->addItem(PanelText::tr("Height"), int(PointColumn::Height));
    box->addItem(PanelText::tr("Easting"), int(PointColumn::Easting));
    box->addItem(PanelText::tr("Northing"), int(PointColumn::Northing));
}

} // namespace

PointColumnsDialog::PointColumnsDialog(const QByteArray& head, QWidget* parent)
    : Dialog(parent)
    , head(head)
    , chosen(PointLayout::guess(head))
    , separatorBox(new ChoiceBox)
    , commaBox(new QCheckBox(PanelText::tr("Decimal comma")))
    , headingBox(new QCheckBox(PanelText::tr("First line is a heading")))
    , unitBox(new ChoiceBox)
    , table(new QTableWidget)
    , problem(new QLabel) {
    setWindowTitle(PanelText::tr("Columns"));
    separatorBox->addItem(PanelText::tr("Tab"), '\t');
    separatorBox->addItem(PanelText::tr("Comma"), ',');
    separatorBox->addItem(PanelText::tr("Semicolon"), ';');
    separatorBox->addItem(PanelText::tr("Blanks"), ' ');
    separatorBox->setCurrentIndex(separatorBox->findData(chosen.separator));
    separatorBox->setAccessibleName(PanelText::tr("Columns parted by"));
    commaBox->setChecked(chosen.decimalComma);
    unitBox->addItem(PanelText::tr("metres"), LengthUnit::Metre);
    unitBox->addItem(PanelText::tr("international feet"), LengthUnit::InternationalFoot);
    unitBox->addItem(PanelText::tr("US survey feet"), LengthUnit::UsSurveyFoot);
    unitBox->setCurrentIndex(unitBox->findData(LengthUnit::chosen()));
    unitBox->setAccessibleName(PanelText::tr("Lengths in"));
    auto* settings = new QHBoxLayout;
    for (ChoiceBox* box : {separatorBox, unitBox}) {
        auto* label = new QLabel(box->accessibleName());
        label->setBuddy(box);
        settings->addWidget(label);
        settings->addWidget(box);
    }
    settings->addWidget(commaBox);
    settings->addWidget(headingBox);
    settings->addStretch();
    table->setAccessibleName(PanelText::tr("First lines"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    problem->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    okButton = buttons->button(QDialogButtonBox::Ok);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(settings);
    layout->addWidget(table, 1);
    layout->addWidget(problem);
    layout->addWidget(buttons);
    connect(separatorBox, SIGNAL(currentIndexChanged(int)), this, SLOT(_onTextChanged()));
    connect(commaBox, SIGNAL(toggled(bool)), this, SLOT(_onTextChanged()));
    connect(headingBox, SIGNAL(clicked()), this, SLOT(_onColumnsChanged()));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    resize(760, 380);
    showLines();
    okButton->setFocus();
}

LengthUnit::Kind PointColumnsDialog::unit() const {
    return LengthUnit::Kind(unitBox->currentData().toInt());
}

void PointColumnsDialog::_onTextChanged() {
    chosen.separator = char(separatorBox->currentData().toInt());
    chosen.decimalComma = commaBox->isChecked();
    chosen = chosen.withGuessedColumns(head);
    showLines();
}

void PointColumnsDialog::_onColumnsChanged() {
    chosen.hasHeading = headingBox->isChecked();
    for (int i = 0; i < columnBoxes.size(); ++i)
        chosen.columns[std::size_t(i)] = PointColumn(columnBoxes[i]->currentData().toInt());
    check();
}

void PointColumnsDialog::showLines() {
    headingBox->setChecked(chosen.hasHeading);
    const auto lines = chosen.firstLines(head, shownLines);
    columnBoxes.clear();
    table->clear();
    table->setRowCount(int(lines.size()) + 1);
    table->setColumnCount(int(chosen.columns.size()));
    for (int column = 0; column < table->columnCount(); ++column) {
        auto* box = new ChoiceBox;
        fillWithColumns(box);
        box->setCurrentIndex(box->findData(int(chosen.columns[std::size_t(column)])));
        box->setAccessibleName(PanelText::tr("Column %1").arg(column + 1));
        box->setAccessibleDescription(box->accessibleName()); // a box without a label is called by its entry
        table->setCellWidget(0, column, box);
        columnBoxes.append(box);
        for (int i = 0; i < int(lines.size()); ++i) {
            const auto& line = lines[std::size_t(i)];
            if (std::size_t(column) < line.size())
                table->setItem(i + 1, column,
                               new QTableWidgetItem(QString::fromStdString(line[std::size_t(column)]).left(200)));
        }
        connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(_onColumnsChanged()));
    }
    for (int column = 0; column < table->columnCount(); ++column)
        table->setColumnWidth(column,
                              std::min(220, std::max(columnBoxes[column]->sizeHint().width(),
                                                     table->fontMetrics().horizontalAdvance("-1234567.1234") + 16)));
    table->resizeRowToContents(0);
    // They are made after what stands below them.
    QWidget* before = headingBox;
    for (ChoiceBox* box : qAsConst(columnBoxes)) {
        setTabOrder(before, box);
        before = box;
    }
    check();
}

void PointColumnsDialog::check() {
    const bool isComplete = chosen.isComplete();
    okButton->setEnabled(isComplete);
    problem->setText(isComplete
                         ? PanelText::tr("Columns of one kind belong together: degrees, minutes and seconds.")
                         : PanelText::tr("Say which columns are latitude and longitude, or easting and northing."));
}
