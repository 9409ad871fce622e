#pragma once

#include "panel/computing/CheckPoint.h"

#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class ChoiceBox;
class FitBox;
class FitToPoints;
class MessageLine;
class NumberBox;
class PointFigures;
class PointSaving;
class PointsModel;
class PointsPlot;
class PointTable;
class QIODevice;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;
class QToolButton;
class ReportWriting;
class ShownSystem;
class SlicedWork;

/// A table of control points computed through the system, with statistics of how far it is off and a picture. Reading,
/// computing and saving many go on in slices, which the user can end.
class PointsPane : public QWidget {
    Q_OBJECT

public:
    explicit PointsPane(bool readOnly, QWidget* parent = nullptr);
    ~PointsPane() override;

    /// Computes the points through the system `shown`, now or when the page comes to the front.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown);

    /// Shows angles and lengths anew in the notation and the unit chosen now.
    void showNotation();

    const PointTable& points() const;

    /// As shown in the box "Fit".
    const FitToPoints& fit() const;

    /// What latitudes, longitudes and heights of points() are on.
    CheckPoint::Datum datum() const;

    /// Asks for the columns of a file and reads it; with a message where it can't.
    void read(const QString& path);

    /// Writes all points to a file, with all digits or as shown.
    void save(const QString& path, bool isFull);

Q_SIGNALS:
    /// The user takes fit() over.
    void fitAccepted();

    /// The points, which of them are in use, or what the system makes of them have changed, and all is computed.
    void pointsChanged();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void _onOpen();
    void _onPaste();
    void _onCopy();
    void _onSave();
    void _onDelete();
    void _onUndo();
    void _onClear();
    void _onFitClicked();
    void _onFitChanged();
    void _onReport();
    void _onNext();
    void _onDatumChanged();
    void _onToleranceChanged();
    void _onEdited(int row);
    void _onUsedChanged();
    void _onRefused(const QString& reason);
    void _onSelectionChanged();
    void _onPointed(int row);
    void _onClicked(int row);
    void _onPlotResized();
    void _onProgressed(double part);
    void _onWorkEnded();
    void _onCancel();

private:
    void buildTable();
    void buildSettings();
    QToolButton* newButton(const QString& text, const char* slot);

    /// What is going on in slices. While there is reading, saving or copying, the table stays as it is.
    enum class Task { None, Reading, Computing, Counting, Saving, Copying };

    /// Reads points from what was opened or pasted, whose name is for messages.
    void read(std::unique_ptr<QIODevice> source, const QString& name);
    void join(const std::shared_ptr<PointTable>& added);
    void begin(Task task, const QString& what, const std::function<double()>& piece, const std::function<void()>& done);
    void lock(bool isLocked);
    bool isKept() const { return task == Task::Reading || task == Task::Saving || task == Task::Copying; }

    /// Does work on all rows, few at once, many in slices.
    void forAllRows(Task forTask, const QString& what, const std::function<void(std::size_t, std::size_t)>& rows,
                    const std::function<void()>& done);

    /// Computes all points; then their names are compared, and all is shown.
    void recompute();
    void catchUp();
    void findDuplicates();
    void showResults();
    void showFit();
    std::vector<bool> selectedRows() const;
    int selectedRow() const;
    void showPoint(int row);
    void showTolerance();
    void say(const QString& text, bool isError = false);

    std::shared_ptr<const ShownSystem> system;
    bool isStale = true;      ///< the system, or the datum, is another since the points were computed
    bool isUncounted = false; ///< the statistics and the picture are to be made anew

    SlicedWork* work;
    Task task = Task::None;
    QString taskName;
    QElapsedTimer taskTime;
    std::shared_ptr<PointSaving> saving; ///< what is going on
    std::shared_ptr<ReportWriting> reporting;
    PointsModel* model;
    QTableView* table;
    PointsPlot* plot;
    ChoiceBox* datumBox;
    NumberBox* toleranceBox;
    QToolButton* openButton;
    QToolButton* pasteButton;
    QToolButton* copyButton;
    QToolButton* saveButton;
    QToolButton* deleteButton;
    QToolButton* clearButton;
    QToolButton* fitButton;
    QToolButton* reportButton;
    QToolButton* nextButton;
    PointFigures* figures;
    QLabel* readout;
    MessageLine* message;
    QProgressBar* progress;
    QPushButton* cancelButton;
    FitBox* fitBox;
};
