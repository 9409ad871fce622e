#include "panel/check/PointsPane.h"

#include "panel/check/FitBox.h"
#include "panel/check/PointColumnsDialog.h"
#include "panel/check/PointFigures.h"
#include "panel/check/PointReading.h"
#include "panel/check/PointSaving.h"
#include "panel/check/PointsModel.h"
#include "panel/check/PointsPlot.h"
#include "panel/check/ReportDialog.h"
#include "panel/check/SlicedWork.h"
#include "panel/computing/DuplicateNames.h"
#include "panel/computing/PointStatistics.h"
#include "panel/computing/PointWriter.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/ChoiceBox.h"
#include "panel/field/MessageLine.h"
#include "panel/field/NumberBox.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"
#include "platform/desktop/VornMessageBox.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr int headSize = 65536;
constexpr std::size_t rowsAtOnce = 2000; ///< so many are computed before the window is seen again
constexpr std::size_t mostCopied = 200000;

/// Leaves what is being typed alone when the table behind it is computed anew.
class TypingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        const auto* edit = qobject_cast<const QLineEdit*>(editor);
        if (!edit || !edit->isModified())
            QStyledItemDelegate::setEditorData(editor, index);
    }
};

} // namespace

PointsPane::PointsPane(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , work(new SlicedWork(this))
    , model(new PointsModel(this))
    , table(new QTableView)
    , plot(new PointsPlot)
    , datumBox(new ChoiceBox)
    , toleranceBox(new NumberBox)
    , figures(new PointFigures)
    , readout(new QLabel)
    , message(new MessageLine)
    , progress(new QProgressBar)
    , cancelButton(new QPushButton(PanelText::tr("Cancel")))
    , fitBox(new FitBox(readOnly)) {
    buildTable();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setVerticalSpacing(3);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    openButton = newButton(PanelText::tr("Open..."), SLOT(_onOpen()));
    pasteButton = newButton(PanelText::tr("Paste"), SLOT(_onPaste()));
    copyButton = newButton(PanelText::tr("Copy"), SLOT(_onCopy()));
    saveButton = newButton(PanelText::tr("Save..."), SLOT(_onSave()));
    deleteButton = newButton(PanelText::tr("Delete"), SLOT(_onDelete()));
    clearButton = newButton(PanelText::tr("Clear"), SLOT(_onClear()));
    for (QToolButton* button : {openButton, pasteButton, copyButton, saveButton, deleteButton, clearButton})
        buttons->addWidget(button);
    buttons->addStretch();
    layout->addLayout(buttons, 0, 0);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    plot->setMinimumWidth(150);
    // What the settings below it need comes first.
    splitter->setMinimumHeight(90);
    splitter->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    splitter->addWidget(table);
    splitter->addWidget(plot);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    auto* working = new QHBoxLayout;
    progress->setRange(0, 1000);
    progress->setAccessibleName(PanelText::tr("Progress"));
    working->addWidget(progress, 1);
    working->addWidget(cancelButton);
    readout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    layout->addWidget(splitter, 1, 0);
    layout->setRowStretch(1, 1);
    nextButton = newButton(PanelText::tr("Next marked"), SLOT(_onNext()));
    nextButton->setToolTip(PanelText::tr("The next point beyond the tolerance, or row with a remark"));
    auto* pointedAt = new QHBoxLayout;
    pointedAt->addWidget(readout, 1);
    pointedAt->addWidget(nextButton);
    layout->addLayout(pointedAt, 2, 0);
    buildSettings();
    layout->addWidget(figures, 4, 0);
    fitBox->hide();
    connect(fitBox, SIGNAL(accepted()), this, SIGNAL(fitAccepted()));
    connect(fitBox, SIGNAL(fitChanged()), this, SLOT(_onFitChanged()));
    layout->addWidget(fitBox, 5, 0);
    reportButton = newButton(PanelText::tr("Report..."), SLOT(_onReport()));
    reportButton->setToolTip(PanelText::tr("Writes the check as a document to file with the job."));
    auto* outcome = new QHBoxLayout;
    outcome->addWidget(message, 1);
    outcome->addWidget(reportButton);
    layout->addLayout(outcome, 6, 0);
    layout->addLayout(working, 7, 0);
    connect(plot, SIGNAL(pointed(int)), this, SLOT(_onPointed(int)));
    connect(plot, SIGNAL(clicked(int)), this, SLOT(_onClicked(int)));
    connect(plot, SIGNAL(resized()), this, SLOT(_onPlotResized()));
    connect(work, SIGNAL(progressed(double)), this, SLOT(_onProgressed(double)));
    connect(work, SIGNAL(ended()), this, SLOT(_onWorkEnded()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(_onCancel()));
    showTolerance();
    _onWorkEnded();
    _onPointed(-1);
}

PointsPane::~PointsPane() = default;

QToolButton* PointsPane::newButton(const QString& text, const char* slot) {
    auto* button = new QToolButton;
    button->setText(text);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

void PointsPane::buildTable() {
    table->setModel(model);
    table->setItemDelegate(new TypingDelegate(table));
    table->setAccessibleName(PanelText::tr("Points"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setMinimumWidth(180);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    QHeaderView* const header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    const auto width = [&](int column, const char* text) {
        return std::max(table->fontMetrics().horizontalAdvance(text) + 14, header->sectionSizeHint(column));
    };
    for (int column = 0; column <= PointsModel::Remark; ++column)
        header->resizeSection(column, width(column, column == PointsModel::Name        ? "[x] Point 12345"
                                                    : column <= PointsModel::Longitude ? "-179.1234567891"
                                                    : column == PointsModel::Height    ? "1234.1234"
                                                    : column <= PointsModel::Northing  ? "-1234567.1234"
                                                                                       : "-123.1234"));
    for (const int column : {PointsModel::FittedEast, PointsModel::FittedNorth})
        table->setColumnHidden(column, true);
    table->installEventFilter(this);
    connect(model, SIGNAL(edited(int)), this, SLOT(_onEdited(int)));
    connect(model, SIGNAL(usedChanged()), this, SLOT(_onUsedChanged()));
    connect(model, SIGNAL(refused(QString)), this, SLOT(_onRefused(QString)));
    connect(table->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(_onSelectionChanged()));
}

void PointsPane::buildSettings() {
    auto* toleranceLabel = new QLabel(PanelText::tr("Tolerance"));
    toleranceLabel->setBuddy(toleranceBox);
    toleranceBox->setToolTip(PanelText::tr("Points that are farther off are marked."));
    toleranceBox->setRange(0.0, 999.0);
    auto* datumLabel = new QLabel(PanelText::tr("Datum"));
    datumLabel->setBuddy(datumBox);
    datumBox->addItem(PanelText::tr("Own"));
    datumBox->addItem(PanelText::tr("WGS 84"));
    datumBox->setAccessibleName(PanelText::tr("Datum"));
    datumBox->setToolTip(PanelText::tr("Datum of latitude, longitude and height: the system's own, or WGS 84"));
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(datumLabel);
    row->addWidget(datumBox);
    row->addSpacing(6);
    row->addWidget(toleranceLabel);
    row->addWidget(toleranceBox);
    row->addStretch();
    fitButton = newButton(PanelText::tr("Fit"), SLOT(_onFitClicked()));
    fitButton->setCheckable(true);
    fitButton->setToolTip(PanelText::tr("Which false origin and scale factor would meet the points best."));
    row->addWidget(fitButton);
    qobject_cast<QGridLayout*>(layout())->addLayout(row, 3, 0);
    connect(datumBox, SIGNAL(currentIndexChanged(int)), this, SLOT(_onDatumChanged()));
    connect(toleranceBox, SIGNAL(valueChanged(double)), this, SLOT(_onToleranceChanged()));
}

const PointTable& PointsPane::points() const {
    return model->points();
}

CheckPoint::Datum PointsPane::datum() const {
    return datumBox->currentIndex() == 0 ? CheckPoint::Datum::Own : CheckPoint::Datum::Wgs84;
}

void PointsPane::setSystem(const std::shared_ptr<const ShownSystem>& shown) {
    const bool isSame = system && shown && system->projection() == shown->projection();
    system = shown;
    if (isSame)
        return;
    isStale = true;
    catchUp();
}

void PointsPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    catchUp();
}

/// Does what had to wait, if it can be done now.
void PointsPane::catchUp() {
    if (!isVisible() || isKept())
        return;
    if (isStale)
        recompute();
    else if (isUncounted)
        showResults();
}

void PointsPane::showNotation() {
    showTolerance();
    model->refresh();
    showResults();
}

void PointsPane::showTolerance() {
    const QSignalBlocker blocker(toleranceBox);
    toleranceBox->setDecimals(LengthUnit::chosen() == LengthUnit::Metre ? 3 : 4);
    toleranceBox->setSingleStep(0.01);
    toleranceBox->setSuffix(' ' + LengthUnit::symbol());
    toleranceBox->setValue(model->tolerance() / LengthUnit::metres());
}

void PointsPane::say(const QString& text, bool isError) {
    message->setMessage(text, isError ? MessageLine::Tone::Error : MessageLine::Tone::Hint);
}

void PointsPane::begin(Task newTask, const QString& what, const std::function<double()>& piece,
                       const std::function<void()>& done) {
    task = newTask;
    taskName = what;
    taskTime.start();
    progress->setFormat(what + " %p %");
    progress->setValue(0);
    // While it is counted, anything can be changed: it is counted anew then.
    lock(task != Task::Counting);
    work->start(piece, done);
}

void PointsPane::lock(bool isLocked) {
    const bool isAnything = !points().isEmpty();
    model->setLocked(isLocked);
    for (QToolButton* button : {openButton, pasteButton})
        button->setEnabled(!isLocked);
    for (QToolButton* button : {copyButton, saveButton, deleteButton, clearButton, nextButton, reportButton})
        button->setEnabled(!isLocked && isAnything);
    datumBox->setEnabled(!isLocked);
}

void PointsPane::_onProgressed(double part) {
    progress->setValue(int(part * 1000.0));
    // What is done in a moment is not worth a bar that comes and goes.
    constexpr int patience = 250;
    if (taskTime.elapsed() > patience && task != Task::None) {
        progress->show();
        cancelButton->show();
    }
}

void PointsPane::_onWorkEnded() {
    task = Task::None;
    progress->hide();
    cancelButton->hide();
    lock(false);
    catchUp();
}

void PointsPane::_onCancel() {
    if ((saving && saving->isCommitting()) || (reporting && reporting->isCommitting()))
        return say(PanelText::tr("All is written: that can't be cancelled any more."));
    say(PanelText::tr("Cancelled: %1").arg(taskName));
    const bool isComputing = task == Task::Computing;
    saving.reset();
    reporting.reset();
    work->cancel();
    if (isComputing)
        showResults();
}

void PointsPane::_onOpen() {
    QFileDialog dialog(this, PanelText::tr("Open points"), QString(),
                       PanelText::tr("Points") + " (*.csv *.txt *.asc *.xyz);;" + PanelText::tr("All files") + " (*)");
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    read(dialog.selectedFiles().first());
}

void PointsPane::read(const QString& path) {
    auto file = std::make_unique<QFile>(path);
    const QString name = QFileInfo(path).fileName();
    if (!file->open(QIODevice::ReadOnly))
        return say(PanelText::tr("%1 can't be read: %2").arg(name, file->errorString()), true);
    read(std::move(file), name);
}

void PointsPane::_onPaste() {
    const QString text = QGuiApplication::clipboard()->text();
    if (model->pasteInto(table->currentIndex(), text))
        return;
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(text.toUtf8());
    buffer->open(QIODevice::ReadOnly);
    read(std::move(buffer), PanelText::tr("The clipboard"));
}

void PointsPane::read(std::unique_ptr<QIODevice> source, const QString& name) {
    const QByteArray start = source->peek(headSize);
    const QString refusal = PointReader::refusal(start);
    if (!refusal.isEmpty())
        return say(PanelText::named(name, refusal), true);
    PointColumnsDialog dialog(PointReader::decodedHead(start), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto reading =
        std::make_shared<PointReading>(std::move(source), dialog.pointLayout(), LengthUnit::metres(dialog.unit()));
    const auto done = [this, reading, name] {
        if (reading->isTooMuch())
            return say(PanelText::tr("%1 has too many points; nothing of it is taken.").arg(name), true);
        const QString error = reading->error();
        if (error.isEmpty())
            say(PanelText::tr("%1: %n row(s) read.", nullptr, int(reading->table.size())).arg(name));
        else
            say(PanelText::tr("%1 can't be read to its end: %2").arg(name, error), true);
        join(std::shared_ptr<PointTable>(reading, &reading->table));
    };
    begin(
        Task::Reading, PanelText::tr("Reading"), [reading] { return reading->read(); }, done);
}

/// Adds points behind those that are there.
void PointsPane::join(const std::shared_ptr<PointTable>& added) {
    const auto both = std::make_shared<PointTable>();
    const auto part = std::make_shared<std::size_t>(0);
    const auto piece = [this, added, both, part] { return both->join(points(), *added, (*part)++) ? 0.5 : 1.0; };
    const auto done = [this, both] {
        model->replace(std::move(*both));
        task = Task::None;
        recompute();
    };
    if (points().size() + added->size() > rowsAtOnce)
        return begin(Task::Reading, PanelText::tr("Reading"), piece, done);
    while (piece() < 1.0) {
    }
    done();
}

void PointsPane::forAllRows(Task forTask, const QString& what,
                            const std::function<void(std::size_t, std::size_t)>& rows,
                            const std::function<void()>& done) {
    if (points().size() <= rowsAtOnce) {
        work->cancel();
        rows(0, points().size());
        return done();
    }
    const auto next = std::make_shared<std::size_t>(0);
    begin(
        forTask, what,
        [this, rows, next] {
            const std::size_t last = std::min(*next + SlicedWork::rowsPerPiece, points().size());
            rows(*next, last);
            *next = last;
            return double(last) / double(points().size());
        },
        done);
}

void PointsPane::recompute() {
    if (isKept()) {
        isStale = true;
        return;
    }
    isStale = false;
    isUncounted = true;
    // No figure of another system stays until its row is reached.
    model->computed().compute(0, points().size(), nullptr, datum());
    const auto shown = system; // as long as it is computed with
    forAllRows(
        Task::Computing, PanelText::tr("Computing"),
        [this, shown](std::size_t first, std::size_t last) {
            model->computed().compute(first, last, shown ? shown->projection() : nullptr, datum());
        },
        [this] { findDuplicates(); });
}

void PointsPane::findDuplicates() {
    const auto names = std::make_shared<DuplicateNames>(model->computed());
    forAllRows(
        Task::Computing, PanelText::tr("Comparing names"),
        [names](std::size_t first, std::size_t last) { names->mark(last - first); },
        [this] {
            task = Task::None;
            showResults();
        });
}

/// Counts and draws all; now, or when what is going on has ended.
void PointsPane::showResults() {
    isUncounted = true;
    if (!isVisible() || (task != Task::None && task != Task::Counting))
        return;
    const auto statistics = std::make_shared<PointStatistics>();
    const auto draw = [this, statistics] {
        plot->begin(statistics->lowest, statistics->highest, model->tolerance());
        forAllRows(
            Task::Counting, PanelText::tr("Drawing"),
            [this](std::size_t first, std::size_t last) { plot->add(points(), first, last); },
            [this] {
                plot->finish();
                showFit();
                _onSelectionChanged();
                isUncounted = false;
                task = Task::None;
                lock(false);
                Q_EMIT pointsChanged();
            });
    };
    forAllRows(
        Task::Counting, PanelText::tr("Counting"),
        [this, statistics](std::size_t first, std::size_t last) {
            statistics->add(points(), first, last, model->tolerance());
        },
        [this, statistics, draw] {
            statistics->finish();
            figures->setStatistics(*statistics, points().size());
            model->refresh();
            draw();
        });
}

const FitToPoints& PointsPane::fit() const {
    return fitBox->fit();
}

/// The box takes the place of the figures, whose like it tells before and after.
void PointsPane::_onFitClicked() {
    const bool isOpen = fitButton->isChecked();
    figures->setVisible(!isOpen);
    fitBox->setVisible(isOpen);
    for (const int column : {PointsModel::FittedEast, PointsModel::FittedNorth})
        table->setColumnHidden(column, !isOpen);
    showFit();
}

/// While the box is not shown it costs nothing.
void PointsPane::showFit() {
    const bool isSystem = system && system->projection();
    if (fitButton->isChecked())
        fitBox->setPoints(
            system, isSystem ? KnownPoint::of(points(), *system->projection(), datum(), FitToPoints::mostPoints + 1)
                             : QVector<KnownPoint>());
}

void PointsPane::_onFitChanged() {
    model->showFit(fitBox->residuals(points().size()));
}

void PointsPane::_onDatumChanged() {
    recompute();
}

void PointsPane::_onToleranceChanged() {
    model->setTolerance(toleranceBox->value() * LengthUnit::metres());
    showResults();
}

void PointsPane::_onEdited(int row) {
    model->computed().compute(std::size_t(row), std::size_t(row) + 1, system ? system->projection() : nullptr, datum());
    say(QString());
    findDuplicates();
}

void PointsPane::_onUsedChanged() {
    showResults();
}

void PointsPane::_onRefused(const QString& reason) {
    say(reason, true);
}

void PointsPane::_onSelectionChanged() {
    const int row = selectedRow();
    plot->setSelected(row >= 0 ? points().grid(std::size_t(row)) : GridPoint{qQNaN(), qQNaN()});
    showPoint(row);
}

/// The one with the ring in the picture, -1 where there is none.
int PointsPane::selectedRow() const {
    const int row = table->currentIndex().row();
    return table->selectionModel()->hasSelection() && row < int(points().size()) ? row : -1;
}

void PointsPane::_onClicked(int row) {
    table->selectRow(row);
    table->scrollTo(model->index(row, 0));
    table->setFocus();
}

void PointsPane::_onPointed(int row) {
    showPoint(row >= 0 && row < int(points().size()) ? row : selectedRow());
}

/// Tells of a row: in a narrow window its columns are not in sight together.
void PointsPane::showPoint(int row) {
    if (row < 0) {
        readout->setText(PanelText::tr("Point at the picture for a point's name."));
        return;
    }
    const std::string_view name = points().name(std::size_t(row));
    QString text = QString::fromUtf8(name.data(), int(name.size()));
    if (text.isEmpty())
        text = PanelText::tr("Row %1").arg(row + 1);
    const GridPoint difference = points().difference(std::size_t(row));
    if (!std::isnan(difference.easting))
        text += QString("   ΔE %1   ΔN %2   %3 %4")
                    .arg(LengthUnit::text(difference.easting), LengthUnit::text(difference.northing),
                         LengthUnit::text(std::hypot(difference.easting, difference.northing)), LengthUnit::symbol());
    readout->setText(text);
}

void PointsPane::_onPlotResized() {
    showResults();
}

/// For each row, whether it is selected; all are where none is.
std::vector<bool> PointsPane::selectedRows() const {
    const bool isAny = table->selectionModel()->hasSelection();
    std::vector<bool> marked(points().size(), !isAny);
    for (const QItemSelectionRange& range : table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom() && std::size_t(row) < marked.size(); ++row)
            marked[std::size_t(row)] = true;
    }
    return marked;
}

void PointsPane::_onCopy() {
    struct Copying {
        std::vector<bool> rows;
        PointWriter writer;
        std::string text;
        std::size_t count = 0;
        bool isCut = false;
    };
    const std::shared_ptr<Copying> copying(
        new Copying{selectedRows(), {points(), '\t', PointWriter::Digits::AsShown, LengthUnit::metres()}, {}});
    copying->text = copying->writer.heading().toStdString();
    forAllRows(
        Task::Copying, PanelText::tr("Copying"),
        [copying](std::size_t first, std::size_t last) {
            for (std::size_t row = first; row < last; ++row) {
                if (!copying->rows[row])
                    continue;
                copying->isCut = copying->count == mostCopied;
                if (copying->isCut)
                    return;
                copying->writer.write(row, copying->text);
                ++copying->count;
            }
        },
        [this, copying] {
            QGuiApplication::clipboard()->setText(QString::fromStdString(copying->text));
            if (copying->isCut)
                say(PanelText::tr("Only the first %1 rows are copied. Save all as CSV.").arg(copying->count), true);
            else
                say(PanelText::tr("%n row(s) copied.", nullptr, int(copying->count)));
        });
}

void PointsPane::_onSave() {
    const QString asShown = PanelText::tr("CSV as shown") + " (*.csv)";
    const QString full = PanelText::tr("CSV with all digits") + " (*.csv)";
    QFileDialog dialog(this, PanelText::tr("Save points"), QString(), asShown + ";;" + full);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("csv");
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        save(dialog.selectedFiles().first(), dialog.selectedNameFilter() == full);
}

void PointsPane::save(const QString& path, bool isFull) {
    const auto current = std::make_shared<PointSaving>(
        points(), path, isFull ? PointWriter::Digits::Full : PointWriter::Digits::AsShown);
    saving = current;
    begin(
        Task::Saving, PanelText::tr("Saving"), [current] { return current->write(); },
        [this, current, path] {
            const QString name = QFileInfo(path).fileName();
            saving.reset();
            if (!current->hasFailed())
                say(PanelText::tr("%1: %n row(s) saved.", nullptr, int(points().size())).arg(name));
            else
                say(PanelText::tr("%1 can't be saved: %2").arg(name, current->error()), true);
        });
}

void PointsPane::_onReport() {
    ReportDialog dialog(system->record(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString name = QFileInfo(dialog.path()).fileName();
    const auto current = std::make_shared<ReportWriting>(
        CheckReport::Check{system, &points(), datum(), model->tolerance()}, dialog.path(), dialog.form());
    reporting = current;
    begin(
        Task::Saving, PanelText::tr("Report"), [current] { return current->step(); },
        [this, current, name] {
            reporting.reset();
            if (current->error().isEmpty())
                say(PanelText::tr("%1: report saved.").arg(name));
            else
                say(PanelText::tr("%1 can't be saved: %2").arg(name, current->error()), true);
        });
}

void PointsPane::_onDelete() {
    if (!table->selectionModel()->hasSelection())
        return say(PanelText::tr("No row is selected."));
    const std::size_t before = points().size();
    const QModelIndex current = table->currentIndex();
    work->cancel();
    model->remove(selectedRows());
    // The keyboard stays where it was, for the next one.
    const int row = std::min(current.row(), int(points().size()));
    table->selectionModel()->setCurrentIndex(model->index(row, current.column()), QItemSelectionModel::NoUpdate);
    say(PanelText::tr("%n row(s) deleted; Ctrl+Z undoes that.", nullptr, int(before - points().size())));
    findDuplicates();
}

void PointsPane::_onUndo() {
    if (!pasteButton->isEnabled())
        return; // the table is locked
    work->cancel();
    const int column = table->currentIndex().column();
    const int row = model->undo();
    if (row < 0)
        return say(PanelText::tr("There is nothing to undo."));
    table->setCurrentIndex(model->index(row, std::max(column, 0)));
    say(PanelText::tr("Undone: the points are as they were before."));
    recompute();
}

void PointsPane::_onClear() {
    if (!VornMessageBox::information(
            this, PanelText::tr("Clear"),
            PanelText::tr("Remove all %n point(s) from the table?", nullptr, int(points().size()))))
        return;
    work->cancel();
    model->clear();
    say(PanelText::tr("All points are removed; Ctrl+Z undoes that."));
    recompute();
}

void PointsPane::_onNext() {
    const QModelIndex current = table->currentIndex();
    const int row = model->nextMarked(current.isValid() ? current.row() : -1);
    if (row < 0)
        return say(PanelText::tr("All is within the tolerance and without a remark."));
    _onClicked(row);
}

/// Copying, pasting, deleting and undoing by the keys that every table has.
bool PointsPane::eventFilter(QObject* object, QEvent* event) {
    if (object == table && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo)) {
            _onUndo();
            return true;
        }
        const std::pair<bool, QToolButton*> keys[] = {{key->matches(QKeySequence::Copy), copyButton},
                                                      {key->matches(QKeySequence::Paste), pasteButton},
                                                      {key->matches(QKeySequence::Delete), deleteButton}};
        for (const auto& [isPressed, button] : keys) {
            if (isPressed) {
                button->click();
                return true;
            }
        }
    }
    return QWidget::eventFilter(object, event);
}
