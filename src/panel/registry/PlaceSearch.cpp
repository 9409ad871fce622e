#include "panel/registry/PlaceSearch.h"

#include "panel/field/MessageLine.h"
#include "panel/field/RowTable.h"
#include "panel/record/PanelText.h"
#include "panel/registry/FoundSystemsModel.h"
#include "panel/registry/PlaceTable.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/ProjNumber.h"

#include <QApplication>
#include <QByteArrayList>
#include <QCheckBox>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int typingPause = 200; ///< milliseconds
constexpr int sliceLength = 15;
constexpr int showInterval = 150;

} // namespace

PlaceSearch::PlaceSearch(IProjectionModule& module, ICoordSystem* catalogue, const RegistryModel& reasons,
                         QWidget* parent)
    : QWidget(parent)
    , module(module)
    , search(module, catalogue)
    , model(new FoundSystemsModel(module.registry(), reasons, this)) {
    auto* layout = new QVBoxLayout(this);
    buildPlaces(layout);
    buildResults(layout);
    setFocusProxy(placeTable);
    pause.setSingleShot(true);
    pause.setInterval(typingPause);
    connect(&pause, SIGNAL(timeout()), this, SLOT(_onSearch()));
    connect(&slice, SIGNAL(timeout()), this, SLOT(_onWork()));
}

void PlaceSearch::buildPlaces(QVBoxLayout* layout) {
    auto* hint =
        new QLabel(PanelText::tr("A place, roughly, and the coordinates that it has in the unknown system; more "
                                 "points narrow it down."));
    hint->setWordWrap(true);
    placeTable = new PlaceTable;
    problemLine = new MessageLine;
    auto* pasteButton = new QPushButton(PanelText::tr("Paste rows"));
    pasteButton->setAutoDefault(false);
    pasteButton->setToolTip(PanelText::tr("Lines of latitude, longitude, first and second coordinate"));
    auto* clearButton = new QPushButton(PanelText::tr("Clear"));
    clearButton->setAutoDefault(false);
    deprecatedBox = new QCheckBox(PanelText::tr("Deprecated ones too"));
    auto* row = new QHBoxLayout;
    row->addWidget(pasteButton);
    row->addWidget(clearButton);
    row->addStretch();
    row->addWidget(deprecatedBox);
    layout->addWidget(hint);
    layout->addWidget(placeTable);
    layout->addWidget(problemLine);
    layout->addLayout(row);
    connect(placeTable, SIGNAL(changed()), this, SLOT(_onPlacesChanged()));
    connect(placeTable, SIGNAL(entered()), this, SLOT(_onEntered()));
    connect(pasteButton, SIGNAL(clicked()), this, SLOT(_onPaste()));
    connect(clearButton, SIGNAL(clicked()), placeTable, SLOT(clear()));
    connect(deprecatedBox, SIGNAL(toggled(bool)), this, SLOT(_onPlacesChanged()));
}

void PlaceSearch::buildResults(QVBoxLayout* layout) {
    table = rowTable(*model);
    table->setAccessibleName(PanelText::tr("Systems"));
    QHeaderView* const header = table->horizontalHeader();
    const int digit = table->fontMetrics().horizontalAdvance('0');
    header->resizeSection(FoundSystemsModel::Distance, 10 * digit);
    header->resizeSection(FoundSystemsModel::Spread, 10 * digit);
    header->resizeSection(FoundSystemsModel::Code, 6 * digit + 16);
    header->resizeSection(FoundSystemsModel::Name, 36 * digit);
    summaryLabel = new QLabel;
    summaryLabel->setWordWrap(true);
    layout->addWidget(table, 1);
    layout->addWidget(summaryLabel);
    connect(table->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SIGNAL(selectionChanged()));
    connect(table, SIGNAL(doubleClicked(QModelIndex)), this, SIGNAL(activated()));
}

const FoundSystem* PlaceSearch::selected() const {
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : &model->system(rows.first().row());
}

void PlaceSearch::_onPlacesChanged() {
    problemLine->setMessage(placeTable->problem(), MessageLine::Tone::Error);
    const QVector<KnownCoordinates> wanted = placeTable->places();
    pause.stop();
    slice.stop();
    if (wanted == places && deprecatedBox->isChecked() == deprecatedToo)
        slice.start(0); // what is typed into a row that is not complete yet changes nothing
    else if (wanted.isEmpty())
        _onSearch();
    else
        pause.start();
    if (pause.isActive())
        summaryLabel->setText(PanelText::tr("Searching..."));
}

void PlaceSearch::_onSearch() {
    places = placeTable->places();
    deprecatedToo = deprecatedBox->isChecked();
    const bool hadSelection = selected() != nullptr;
    model->setSystems({});
    table->setColumnHidden(FoundSystemsModel::Spread, places.size() < 2);
    search.start(places, deprecatedToo);
    if (hadSelection)
        Q_EMIT selectionChanged();
    sinceShown.start();
    slice.start(0);
    _onWork();
}

void PlaceSearch::_onWork() {
    const bool isDone = !search.work(sliceLength);
    if (isDone)
        slice.stop();
    if (isDone || sinceShown.hasExpired(showInterval)) {
        showFound(isDone);
        sinceShown.start();
    }
}

void PlaceSearch::showFound(bool isDone) {
    const FoundSystem* const chosen = selected();
    const FoundSystem before = chosen ? *chosen : FoundSystem();
    {
        const QSignalBlocker blocker(table->selectionModel());
        model->setSystems(search.found());
        const int row = chosen ? model->rowOf(before) : -1;
        if (row >= 0)
            table->selectRow(row);
    }
    if (chosen)
        Q_EMIT selectionChanged();
    summaryLabel->setText(summary(isDone));
}

QString PlaceSearch::summary(bool isDone) const {
    if (places.isEmpty())
        return QString();
    const int count = model->rowCount();
    if (!isDone)
        return PanelText::tr("Systems found so far: %1").arg(count);
    if (count == 0)
        return PanelText::tr("No system that is used there can have these coordinates.");
    const QString distances =
        PanelText::tr("Distances are without datum shift, which can move a place by some hundred metres.");
    if (model->system(0).fit.distance > SystemSearch::nearby)
        return PanelText::tr("No system gives these coordinates within 50 km of the place. The nearest %n:", nullptr,
                             count);
    return PanelText::joined({PanelText::tr("Systems found: %1.").arg(count), distances});
}

QString PlaceSearch::description(const RegistryShift* shift) const {
    const FoundSystem* const system = selected();
    if (!system)
        return QString();
    const CoordinateReading& reading = system->fit.reading;
    const QString distance = FoundSystemsModel::metres(system->fit.distance);
    QString text = reading.shifted ? PanelText::tr("%1 from the place, with the system's datum shift").arg(distance)
                                   : PanelText::tr("%1 from the place, without datum shift").arg(distance);
    if (shift && system->registered) {
        QByteArrayList values;
        for (const double value : shift->values)
            values.append(projNumber(value));
        const QByteArray& definition = module.registry().definition(system->registered->code).definition;
        const auto shifted = module.createSystem(definition + " +towgs84=" + values.join(','));
        CoordinateReading onWgs84 = reading;
        onWgs84.shifted = true;
        const auto fit = shifted ? CoordinateFit::of(*shifted, onWgs84, places) : std::nullopt;
        if (fit)
            text += PanelText::tr(", %1 with the one below").arg(FoundSystemsModel::metres(fit->distance));
    }
    const QString condition = model->condition(*system);
    return condition.isEmpty() ? text : text + ", " + condition;
}

void PlaceSearch::_onPaste() {
    if (!placeTable->pasteRows(QApplication::clipboard()->text()))
        problemLine->setMessage(PanelText::tr("Nothing to paste: lines of latitude, longitude and two coordinates."),
                                MessageLine::Tone::Error);
}

void PlaceSearch::_onEntered() {
    if (pause.isActive())
        _onSearch();
    pause.stop();
    while (slice.isActive())
        _onWork();
    if (model->rowCount() == 0)
        return;
    table->setFocus();
    table->selectRow(0);
}
