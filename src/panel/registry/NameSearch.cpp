#include "panel/registry/NameSearch.h"

#include "panel/field/Colours.h"
#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/field/RowTable.h"
#include "panel/record/AngleText.h"
#include "panel/record/PanelText.h"
#include "panel/registry/RegistryModel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// The angle of `edit`, which is marked when its text is none; nothing for an empty text.
std::optional<double> angle(FieldEdit* edit, AngleRole role, double limit, QString* reason) {
    const QString text = edit->text().trimmed();
    const AngleInput input = text.isEmpty() ? AngleInput() : AngleText::parseTyped(text, role);
    const bool valid = input.valid && std::abs(input.degrees) <= limit;
    edit->setMarked(!text.isEmpty() && !valid);
    if (!text.isEmpty() && !valid)
        *reason = input.valid ? PanelText::tr("Allowed: %1 to %2.").arg(-limit).arg(limit) : input.reason;
    edit->setAccessibleDescription(edit->isMarked() ? *reason : QString());
    return valid ? std::optional<double>(input.degrees) : std::nullopt;
}

} // namespace

NameSearch::NameSearch(RegistryModel& model, QWidget* parent) : QWidget(parent), model(model) {
    auto* layout = new QVBoxLayout(this);
    buildSearch(layout);
    buildTable(layout);
    setFocusProxy(searchEdit);
    _onSearchChanged();
}

void NameSearch::buildSearch(QVBoxLayout* layout) {
    searchEdit = new QLineEdit;
    searchEdit->setClearButtonEnabled(true);
    searchEdit->setPlaceholderText(PanelText::tr("EPSG code, words of the name or of the area"));
    Colours::setReadablePlaceholder(searchEdit);
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

void NameSearch::buildTable(QVBoxLayout* layout) {
    table = rowTable(model);
    table->setAccessibleName(PanelText::tr("Systems"));
    QHeaderView* const header = table->horizontalHeader();
    header->resizeSection(RegistryModel::Code, table->fontMetrics().horizontalAdvance("000000") + 16);
    header->resizeSection(RegistryModel::Name, 300);
    countLabel = new QLabel;
    layout->addWidget(table, 1);
    layout->addWidget(countLabel);
    connect(table->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(_onSelectionChanged()));
    connect(table, SIGNAL(doubleClicked(QModelIndex)), this, SIGNAL(activated()));
}

const RegistrySystem* NameSearch::selected() const {
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : &model.system(rows.first().row());
}

void NameSearch::_onSearchChanged() {
    QString reason;
    RegistryModel::Search search;
    search.text = searchEdit->text();
    search.latitude = angle(latitudeEdit, AngleRole::Latitude, 90.0, &reason);
    search.longitude = angle(longitudeEdit, AngleRole::Longitude, 360.0, &reason);
    search.deprecatedToo = deprecatedBox->isChecked();
    pointMessage->setMessage(reason, MessageLine::Tone::Error);
    const QByteArray code = shownCode;
    model.setSearch(search);
    countLabel->setText(PanelText::tr("Systems found: %1").arg(model.rowCount()));
    // What was selected stays so while it is listed; what alone is left is what was looked for.
    const int row = model.rowCount() == 1 ? 0 : model.rowOf(code);
    if (row >= 0)
        table->selectRow(row);
    _onSelectionChanged();
}

void NameSearch::_onSelectionChanged() {
    const RegistrySystem* const system = selected();
    const QByteArray code = system ? system->code : QByteArray();
    if (code == shownCode && !code.isEmpty())
        return;
    shownCode = code;
    Q_EMIT selectionChanged();
}
