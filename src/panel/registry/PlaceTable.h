#pragma once

#include "panel/computing/CoordinateFit.h"

#include <QScrollArea>
#include <QVector>

class FieldEdit;
class QGridLayout;

/// Rows of places with the two coordinates that each has, to be typed or pasted. There is always an empty row left.
class PlaceTable : public QScrollArea {
    Q_OBJECT

public:
    enum Column { Latitude, Longitude, First, Second, ColumnCount };

    explicit PlaceTable(QWidget* parent = nullptr);

    /// The rows whose four texts are all right.
    QVector<KnownCoordinates> places() const;

    /// Why a text is refused, or which row lacks something; translated, empty when all is right.
    QString problem() const;

    /// Puts the cells of `text`, read as a list of points is (PointLayout), into the fields from the one at `row` and
    /// `column` on; whole rows of four start at the first column, and a name before them is left out. False, with
    /// nothing changed, when the text holds no more than one cell.
    bool paste(const QString& text, int row, int column);

    /// As paste(), from the first empty row on. False, with nothing changed, when the text holds no whole row.
    bool pasteRows(const QString& text);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Empties all fields.
    void clear();

Q_SIGNALS:
    void changed();

    /// The user pressed Return in a field.
    void entered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void _onEdited();

private:
    using Row = QVector<FieldEdit*>;

    void addRow();
    bool isEmpty(const Row& row) const;

    QGridLayout* grid;
    QVector<Row> rows;
};
