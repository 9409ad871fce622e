#include "panel/shift/ShiftDialog.h"

#include "panel/computing/ShownSystem.h"
#include "panel/shift/ShiftPointsModel.h"
#include "support/OnScreen.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"
#include "support/TextTable.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

namespace {

/// The dialog on a sample's record. A script starts with the record's name and changes to it.
///   done: "points=name" copies those of points.txt, "paste" (=lines) them by the keyboard, "select=row,column",
///         "type=text" into that cell, "space", "delete" and "undo" are keys in the table, "reopen" the dialog on the
///         same points
///   seen: "rows", "outlier:row" by its colour, "cell:row,column", "tip of:row,column", "checked:row", "heading:column"
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
            QTest::keyClick(table(), Qt::Key_Return);
            auto* editor = table()->viewport()->findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->clear();
            QTest::keyClicks(editor, text);
            QTest::keyClick(editor, Qt::Key_Return);
            QCoreApplication::processEvents(); // the table takes the text over later
            QCoreApplication::sendPostedEvents(editor, QEvent::DeferredDelete);
        };
        acts["points"] = [](const QString& name) {
            QStringList lines;
            for (const QByteArrayList& row : textTable("points.txt")) {
                if (row[0] == name)
                    lines << QString::fromUtf8(row[1]).simplified();
            }
            QApplication::clipboard()->setText(lines.join("\n"));
        };
        acts["paste"] = [this](const QString& lines) {
            if (!lines.isEmpty())
                QApplication::clipboard()->setText(lines);
            QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        };
        acts["space"] = [this](const QString&) { QTest::keyClick(table(), Qt::Key_Space); };
        acts["delete"] = [this](const QString&) { QTest::keyClick(table(), Qt::Key_Delete); };
        acts["undo"] = [this](const QString&) { QTest::keyClick(table(), Qt::Key_Z, Qt::ControlModifier); };
        sights["outlier"] = [this](const QString& row) {
            return index(row + ",8").data(Qt::ForegroundRole).value<QColor>() == QColor(0xb00020) ? "yes" : "no";
        };
        sights["rows"] = [this](const QString&) { return QString::number(points.rowCount()); };
        sights["cell"] = [this](const QString& cell) { return index(cell).data().toString(); };
        sights["tip of"] = [this](const QString& cell) { return index(cell).data(Qt::ToolTipRole).toString(); };
        sights["checked"] = [this](const QString& row) {
            return index(row + ",0").data(Qt::CheckStateRole) == Qt::Checked ? "yes" : "no";
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
