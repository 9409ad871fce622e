#include "panel/registry/RegistryDialog.h"

#include "panel/field/ChoiceBox.h"
#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/record/AngleText.h"
#include "panel/record/PanelText.h"
#include "panel/registry/RegistryModel.h"

#include <QCheckBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// The angle of `edit`, which is marked when its text is none; nothing for an empty text.
std::optional<double> angle(FieldEdit* edit, AngleRole role, double limit, QString* reason) {
    const QString text = edit->text().trimmed();
    const AngleInput input = text.isEmpty() ? AngleInput() : AngleText::parse(text, role);
    const bool valid = input.valid && std::abs(input.degrees) <= limit;
    edit->setMarked(!text.isEmpty() && !valid);
    if (!text.isEmpty() && !valid)
        *reason = input.valid ? PanelText::tr("Allowed: %1 to %2.").arg(-limit).arg(limit) : input.reason;
    return valid ? std::optional<double>(input.degrees) : std::nullopt;
}

QString shiftText(const RegistryShift& shift) {
    const QString name = QString::fromUtf8(shift.name);
    return shift.accuracy < 0.0 ? name : PanelText::tr("%1, accuracy %2 m").arg(name).arg(shift.accuracy);
}

} // namespace

RegistryDialog::RegistryDialog(IEpsgRegistry& registry, QWidget* parent)
    : Dialog(parent), registry(registry), model(new RegistryModel(registry, this)) {
    setWindowTitle(PanelText::tr("From registry"));
    auto* layout = new QVBoxLayout(this);
    buildSearch(layout);
    buildTable(layout);
    buildDetails(layout);
    resize(720, 560);
    _onSearchChanged();
    searchEdit->setFocus();
}

void RegistryDialog::buildSearch(QVBoxLayout* layout) {
    searchEdit = new QLineEdit;
    searchEdit->setClearButtonEnabled(true);
    searchEdit->setPlaceholderText(PanelText::tr("EPSG code, words of the name or of the area"));
    searchEdit->setAccessibleName(PanelText::tr("Search"));
    latitudeEdit = new FieldEdit;
    longitudeEdit = new FieldEdit;
    latitudeEdit->setPlaceholderText(PanelText::tr("Latitude"));
    longitudeEdit->setPlaceholderText(PanelText::tr("Longitude"));
    latitudeEdit->setAccessibleName(latitudeEdit->placeholderText());
    longitudeEdit->setAccessibleName(longitudeEdit->placeholderText());
    deprecatedBox = new QCheckBox(PanelText::tr("Deprecated ones too"));
    pointMessage = new MessageLine;
    auto* pointLabel = new QLabel(PanelText::tr("Covers the point"));
    pointLabel->setBuddy(latitudeEdit);
    auto* row = new QHBoxLayout;
    row->addWidget(pointLabel);
    row->addWidget(latitudeEdit, 1);
    row->addWidget(longitudeEdit, 1);
    row->addSpacing(12);
    row->addWidget(deprecatedBox);
    layout->addWidget(searchEdit);
    layout->addLayout(row);
    layout->addWidget(pointMessage);
    for (QLineEdit* edit : {searchEdit, static_cast<QLineEdit*>(latitudeEdit), static_cast<QLineEdit*>(longitudeEdit)})
        connect(edit, SIGNAL(textChanged(QString)), this, SLOT(_onSearchChanged()));
    connect(deprecatedBox, SIGNAL(toggled(bool)), this, SLOT(_onSearchChanged()));
    for (FieldEdit* edit : {latitudeEdit, longitudeEdit})
        connect(edit, SIGNAL(cancelled()), edit, SLOT(clear()));
}

void RegistryDialog::buildTable(QVBoxLayout* layout) {
    table = new QTableView;
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    QHeaderView* const header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->resizeSection(RegistryModel::Code, table->fontMetrics().horizontalAdvance("000000") + 16);
    header->resizeSection(RegistryModel::Name, 300);
    countLabel = new QLabel;
    layout->addWidget(table, 1);
    layout->addWidget(countLabel);
    connect(table->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(_onSelectionChanged()));
    connect(table, SIGNAL(doubleClicked(QModelIndex)), this, SLOT(_onActivated()));
}

void RegistryDialog::buildDetails(QVBoxLayout* layout) {
    detailsLabel = new QLabel;
    detailsLabel->setWordWrap(true);
    detailsLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    detailsLabel->setMinimumHeight(detailsLabel->fontMetrics().lineSpacing() * 4);
    shiftBox = new ChoiceBox;
    shiftBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* shiftLabel = new QLabel(PanelText::tr("Datum shift to WGS 84"));
    shiftLabel->setBuddy(shiftBox);
    auto* row = new QHBoxLayout;
    row->addWidget(shiftLabel);
    row->addWidget(shiftBox, 1);
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(PanelText::tr("Take over"));
    layout->addWidget(detailsLabel);
    layout->addLayout(row);
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

QByteArray RegistryDialog::wkt() const {
    const RegistrySystem* const system = selected();
    if (!system)
        return {};
    const int shift = shiftBox->currentIndex() - 1;
    return registry.wkt(system->code, shift < 0 ? nullptr : &shifts[std::size_t(shift)]);
}

QByteArray RegistryDialog::datumName() const {
    const RegistrySystem* const system = selected();
    return system ? registry.datumName(system->code) : QByteArray();
}

QByteArray RegistryDialog::source() const {
    const RegistrySystem* const system = selected();
    const QByteArray today = QDate::currentDate().toString(Qt::ISODate).toUtf8();
    return system ? "EPSG:" + system->code + ", " + registry.edition() + ", " + today : QByteArray();
}

const RegistrySystem* RegistryDialog::selected() const {
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : &model->system(rows.first().row());
}

void RegistryDialog::_onSearchChanged() {
    QString reason;
    RegistryModel::Search search;
    search.text = searchEdit->text();
    search.latitude = angle(latitudeEdit, AngleRole::Latitude, 90.0, &reason);
    search.longitude = angle(longitudeEdit, AngleRole::Longitude, 360.0, &reason);
    search.deprecatedToo = deprecatedBox->isChecked();
    pointMessage->setMessage(reason, MessageLine::Tone::Error);
    const QByteArray code = shownCode;
    model->setSearch(search);
    countLabel->setText(PanelText::tr("Systems found: %1").arg(model->rowCount()));
    // What was selected stays so while it is listed; what alone is left is what was looked for.
    const int row = model->rowCount() == 1 ? 0 : model->rowOf(code);
    if (row >= 0)
        table->selectRow(row);
    _onSelectionChanged();
}

void RegistryDialog::_onSelectionChanged() {
    const RegistrySystem* const system = selected();
    const QByteArray code = system ? system->code : QByteArray();
    if (code == shownCode && !code.isEmpty())
        return;
    shownCode = code;
    showDetails();
}

void RegistryDialog::showDetails() {
    const RegistrySystem* const system = selected();
    const QString reason = system ? model->reason(*system) : QString();
    shifts = system && reason.isEmpty() ? registry.datumShifts(system->code) : std::vector<RegistryShift>();
    shiftBox->clear();
    shiftBox->addItem(PanelText::tr("None"));
    for (const RegistryShift& shift : shifts) {
        shiftBox->addItem(shiftText(shift));
        shiftBox->setItemData(shiftBox->count() - 1, QString::fromUtf8(shift.area), Qt::ToolTipRole);
    }
    shiftBox->setCurrentIndex(shifts.empty() ? 0 : 1);
    shiftBox->setEnabled(!shifts.empty());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(system && reason.isEmpty());
    if (!system) {
        detailsLabel->clear();
        return;
    }
    QStringList lines{QString::fromUtf8(system->method) + (reason.isEmpty() ? QString() : QStringLiteral(" \u2013 ")) +
                      reason};
    const QString unit = QString::fromUtf8(registry.unitName(system->code));
    if (unit != "metre")
        lines.append(PanelText::tr("The registry counts in %1, the record in metres.").arg(unit));
    lines.append(QString::fromUtf8(system->area));
    detailsLabel->setText(lines.join('\n'));
    detailsLabel->setToolTip(lines.last());
}

void RegistryDialog::_onActivated() {
    if (buttons->button(QDialogButtonBox::Ok)->isEnabled())
        accept();
}
