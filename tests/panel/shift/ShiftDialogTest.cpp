#include "panel/shift/ShiftDialog.h"

#include "panel/computing/ShownSystem.h"
#include "panel/shift/ShiftPointsModel.h"
#include "support/OnScreen.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"

namespace {

/// The dialog on a sample's record. A script starts with the record's name and changes to it.
///   done: "paste=lines" with the keyboard in the table's first column, "paste at row,column=lines", "select=row,column",
///         "cell row,column=text" types into a cell, "reopen" on the same points
///   seen: "rows", "cell:row,column", "tip of:row,column", "heading:column", "can take over"
class ShiftDialogOnScreen : public OnScreen {
public:
    explicit ShiftDialogOnScreen(const QString& start) : points(nullptr) {
        SampleRecord sample = SampleRecord::named(start.section(", ", 0, 0).toUtf8());
        for (const QString& change : start.split(", ").mid(1))
            sample = sample.with(change.section('=', 0, 0).toUtf8(), change.section('=', 1).toUtf8());
        dictionary_assign(record.get(), sample.record().get());
        points.setSystem(ShownSystem::of(*record, nullptr));
        show();
        acts["reopen"] = [this](const QString&) { show(); };
        acts["select"] = [this](const QString& cell) { table()->setCurrentIndex(index(cell)); };
        acts["type"] = [this](const QString& text) {
            QTest::keyClick(table(), Qt::Key_F2);
            auto* editor = table()->viewport()->findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, text);
            QTest::keyClick(editor, Qt::Key_Return);
        };
        acts["paste"] = [this](const QString& lines) {
            QApplication::clipboard()->setText(lines);
            QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        };
        acts["space"] = [this](const QString&) { QTest::keyClick(table(), Qt::Key_Space); };
        acts["delete"] = [this](const QString&) { QTest::keyClick(table(), Qt::Key_Delete); };
        sights["rows"] = [this](const QString&) { return QString::number(points.rowCount()); };
        sights["cell"] = [this](const QString& cell) { return index(cell).data().toString(); };
        sights["tip of"] = [this](const QString& cell) { return index(cell).data(Qt::ToolTipRole).toString(); };
        sights["checked"] = [this](const QString& row) {
            return index(row + ",0").data(Qt::CheckStateRole).toInt() == Qt::Checked ? "yes" : "no";
        };
        sights["heading"] = [this](const QString& column) {
            return points.headerData(column.toInt(), Qt::Horizontal).toString();
        };
    }

private:
    void show() {
        dialog = std::make_unique<ShiftDialog>(points, *record, nullptr);
        open(*dialog);
        QApplication::processEvents();
    }

    QTableView* table() const { return dialog->findChild<QTableView*>(); }

    QModelIndex index(const QString& cell) const {
        return points.index(cell.section(',', 0, 0).toInt(), cell.section(',', 1).toInt());
    }

    ShiftPointsModel points;
    DictionaryGuard record;
    std::unique_ptr<ShiftDialog> dialog;
};

} // namespace

class ShiftDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"from_points.txt"}); }

    void script() {
        QFETCH(QString, start);
        ShiftDialogOnScreen(start).play();
    }
};

ROOM_TEST(ShiftDialogTest)
#include "ShiftDialogTest.moc"
