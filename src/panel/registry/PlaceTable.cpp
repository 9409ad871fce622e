#include "panel/registry/PlaceTable.h"

#include "panel/computing/PointLayout.h"
#include "panel/field/FieldEdit.h"
#include "panel/record/PanelText.h"
#include "panel/record/ParamField.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int shownRows = 3;
constexpr int mostRows = 50;

const ParamField& fieldOf(int column) {
    static const ParamField fields[PlaceTable::ColumnCount] = {
        {"", Quantity::Latitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude"), -90.0, 90.0, 0.0},
        {"", Quantity::Longitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude"), -360.0, 360.0, 0.0},
        {"", Quantity::Length, QT_TRANSLATE_NOOP("DlgCoordParam", "First coordinate"), -1e9, 1e9, 0.0},
        {"", Quantity::Length, QT_TRANSLATE_NOOP("DlgCoordParam", "Second coordinate"), -1e9, 1e9, 0.0}};
    return fields[column];
}

bool isRow(const QStringList& cells) {
    bool isValid = cells.size() == PlaceTable::ColumnCount;
    for (int column = 0; isValid && column < cells.size(); ++column)
        isValid = fieldOf(column).parse(cells[column]).valid;
    return isValid;
}

/// The cells of a pasted text, with decimal points; a name before four of them left out.
QVector<QStringList> rowsOf(const QString& text) {
    const PointLayout layout = PointLayout::guess(text.toUtf8());
    QVector<QStringList> rows;
    static const QRegularExpression lineEnd("[\r\n]+");
    for (const QString& line : text.split(lineEnd, Qt::SkipEmptyParts)) {
        const QByteArray utf8 = line.toUtf8();
        std::vector<std::string_view> fields;
        std::string unquoted;
        layout.split({utf8.constData(), std::size_t(utf8.size())}, fields, unquoted);
        QStringList cells;
        for (const std::string_view field : fields) {
            const QString cell = QString::fromUtf8(field.data(), int(field.size()));
            cells << (layout.decimalComma ? QString(cell).replace(',', '.') : cell);
        }
        if (cells.size() == PlaceTable::ColumnCount + 1)
            cells.removeFirst();
        // Blanks may also part degrees, minutes and seconds.
        rows.append(layout.separator == ' ' && !isRow(cells) ? QStringList{line} : cells);
    }
    return rows;
}

} // namespace

PlaceTable::PlaceTable(QWidget* parent) : QScrollArea(parent) {
    auto* content = new QWidget;
    grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(3);
    for (int column = 0; column < ColumnCount; ++column) {
        grid->addWidget(new QLabel(fieldOf(column).labelText()), 0, column);
        grid->setColumnStretch(column, 1);
    }
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // A scroll area would paint a background of its own, which differs from the page's.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    for (int row = 0; row < shownRows; ++row)
        addRow();
    setFocusProxy(rows.first().first());
}

void PlaceTable::addRow() {
    Row row;
    for (int column = 0; column < ColumnCount; ++column) {
        auto* edit = new FieldEdit;
        edit->setWide();
        edit->setAccessibleName(PanelText::tr("%1 of point %2").arg(fieldOf(column).labelText()).arg(rows.size() + 1));
        grid->addWidget(edit, rows.size() + 1, column, Qt::AlignTop);
        edit->installEventFilter(this);
        connect(edit, SIGNAL(textChanged(QString)), this, SLOT(_onEdited()));
        connect(edit, SIGNAL(cancelled()), edit, SLOT(clear()));
        if (!rows.isEmpty() || column > 0)
            setTabOrder(column > 0 ? row.last() : rows.last().last(), edit);
        row.append(edit);
    }
    rows.append(row);
    grid->setRowStretch(rows.size(), 0);
    grid->setRowStretch(rows.size() + 1, 1);
}

bool PlaceTable::isEmpty(const Row& row) const {
    return std::all_of(row.begin(), row.end(), [](const FieldEdit* edit) { return edit->text().trimmed().isEmpty(); });
}

QVector<KnownCoordinates> PlaceTable::places() const {
    QVector<KnownCoordinates> result;
    for (const Row& row : rows) {
        FieldInput inputs[ColumnCount];
        for (int column = 0; column < ColumnCount; ++column)
            inputs[column] = fieldOf(column).parse(row[column]->text());
        if (std::all_of(std::begin(inputs), std::end(inputs), [](const FieldInput& input) { return input.valid; }))
            result.append({inputs[Latitude].value, inputs[Longitude].value, inputs[First].value, inputs[Second].value});
    }
    return result;
}

QString PlaceTable::problem() const {
    QString incomplete;
    for (int index = 0; index < rows.size(); ++index) {
        if (isEmpty(rows[index]))
            continue;
        for (int column = 0; column < ColumnCount; ++column) {
            const QString text = rows[index][column]->text();
            const FieldInput input = fieldOf(column).parse(text);
            if (!input.valid && !text.trimmed().isEmpty())
                return PanelText::tr("Point %1, %2: %3").arg(index + 1).arg(fieldOf(column).labelText(), input.reason);
            if (!input.valid && incomplete.isEmpty())
                incomplete = PanelText::tr("Point %1, %2: %3")
                                 .arg(index + 1)
                                 .arg(fieldOf(column).labelText(), PanelText::tr("A value is needed."));
        }
    }
    return incomplete;
}

void PlaceTable::_onEdited() {
    for (const Row& row : qAsConst(rows)) {
        for (int column = 0; column < ColumnCount; ++column)
            row[column]->setMarked(!row[column]->text().trimmed().isEmpty() &&
                                   !fieldOf(column).parse(row[column]->text()).valid);
    }
    if (!isEmpty(rows.last()) && rows.size() < mostRows)
        addRow();
    Q_EMIT changed();
}

bool PlaceTable::paste(const QString& text, int row, int column) {
    if (fieldOf(column).parse(text).valid)
        return false; // one figure, though commas or blanks are in it
    const QVector<QStringList> pasted = rowsOf(text);
    if (pasted.isEmpty() || (pasted.size() == 1 && pasted.first().size() == 1))
        return false;
    QSignalBlocker blocker(this); // to be told of once, at the end
    for (const QStringList& cells : pasted) {
        int at = cells.size() >= ColumnCount ? 0 : column;
        for (int i = 0; i < cells.size() && at < ColumnCount && row < rows.size(); ++i, ++at)
            rows[row][at]->setText(cells[i].trimmed());
        ++row;
    }
    blocker.unblock();
    Q_EMIT changed();
    return true;
}

bool PlaceTable::pasteRows(const QString& text) {
    const QVector<QStringList> pasted = rowsOf(text);
    if (std::none_of(pasted.begin(), pasted.end(), isRow))
        return false;
    const auto firstEmpty = std::find_if(rows.begin(), rows.end(), [this](const Row& row) { return isEmpty(row); });
    return paste(text, int(firstEmpty - rows.begin()), 0);
}

void PlaceTable::clear() {
    QSignalBlocker blocker(this);
    for (const Row& row : qAsConst(rows)) {
        for (FieldEdit* edit : row)
            edit->clear();
    }
    while (rows.size() > shownRows)
        qDeleteAll(rows.takeLast());
    blocker.unblock();
    Q_EMIT changed();
}

bool PlaceTable::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QScrollArea::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        Q_EMIT entered(); // and no button of the dialog is pressed
        return true;
    }
    for (int row = 0; key->matches(QKeySequence::Paste) && row < rows.size(); ++row) {
        const int column = rows[row].indexOf(static_cast<FieldEdit*>(watched));
        if (column >= 0)
            return paste(QApplication::clipboard()->text(), row, column);
    }
    return QScrollArea::eventFilter(watched, event);
}

QSize PlaceTable::sizeHint() const {
    const int label = fontMetrics().height();
    const int row = rows.first().first()->sizeHint().height() + grid->verticalSpacing();
    return {QScrollArea::sizeHint().width(), label + shownRows * row + grid->verticalSpacing()};
}
