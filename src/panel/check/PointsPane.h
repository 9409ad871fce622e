#pragma once

#include "panel/computing/CheckPoint.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class ChoiceBox;
class MessageLine;
class PointsModel;
class PointsPlot;
class PointTable;
class QDoubleSpinBox;
class QIODevice;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;
class QToolButton;
class ShownSystem;
class SlicedWork;
struct PointStatistics;

/// A table of control points computed through the system, with statistics of how far it is off and a picture. Reading,
/// computing and saving many go on in slices, which the user can end.
class PointsPane : public QWidget {
    Q_OBJECT

public:
    explicit PointsPane(QWidget* parent = nullptr);
    ~PointsPane() override;

    /// Computes the points through the system `shown`, now or when the page comes to the front.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown);

    /// Shows angles and lengths anew in the notation and the unit chosen now.
    void showNotation();

    const PointTable& points() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void _onOpen();
    void _onPaste();
    void _onCopy();
    void _onSave();
    void _onDelete();
    void _onClear();
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
    enum FigureColumn { Mean, Rms, Largest, FigureColumnCount };
    enum FigureLine { East, North, Total, FigureLineCount };

    void buildTable();
    void buildSettings();
    void buildFigures();
    QToolButton* newButton(const QString& text, const char* slot);

    /// Reads points from what was opened or pasted, whose name is for messages.
    void read(std::unique_ptr<QIODevice> source, const QString& name);
    void begin(const QString& what, const std::function<double()>& piece, const std::function<void()>& done);
    void save(const QString& path, bool isFull);
    void recompute();
    void findDuplicates();
    void showResults();
    void showFigures(const PointStatistics& statistics);
    void showTolerance();
    void say(const QString& text, bool isError = false);
    CheckPoint::Datum datum() const;
    QString lengthText(double metres) const;

    std::shared_ptr<const ShownSystem> system;
    bool isStale = true; ///< the system, or the datum, is another since the points were computed

    SlicedWork* work;
    QString workName;
    PointsModel* model;
    QTableView* table;
    PointsPlot* plot;
    ChoiceBox* datumBox;
    QDoubleSpinBox* toleranceBox;
    QToolButton* openButton;
    QToolButton* pasteButton;
    QToolButton* copyButton;
    QToolButton* saveButton;
    QToolButton* deleteButton;
    QToolButton* clearButton;
    std::array<std::array<QLabel*, FigureColumnCount>, FigureLineCount> figures;
    QLabel* counts;
    QLabel* readout;
    MessageLine* message;
    QProgressBar* progress;
    QPushButton* cancelButton;
};
