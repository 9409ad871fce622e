#include "panel/check/PointsPane.h"

#include "panel/check/PointsModel.h"
#include "panel/check/PointsPlot.h"
#include "panel/check/SlicedWork.h"
#include "panel/record/LengthUnit.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QFont>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <cmath>

namespace {

/// The page "Points" of the tab "Check".
///   done: "paste=text" (lines parted by "/") accepts the dialog of its columns, which "columns" tells; "refused paste"
///   shows none;
///         "cell paste=2 Name=text" into the second row, "undo" by the keyboard,
///         "save=as shown", "save=full", "report=name" and "open=text" a file; "cell=2 Name=text" types into the second
///         row, "used=2" turns its check mark, "select=2", "click=2" the point in the picture, "mouse=2"
///   seen: "cell:2 Name", "rows", "scrolls" (how many pixels are out of sight in a small window), "picture" (points, of
///   them red and grey), "ring" the easting in the picture, "selected" and "current" in the table
class PointsOnScreen : public PanelOnScreen {
public:
    explicit PointsOnScreen(const QString& start) : PanelOnScreen(start) {
        turnTo("Points");
        QApplication::processEvents();
        pane = panel.findChild<PointsPane*>();
        model = panel.findChild<PointsModel*>();
        plot = panel.findChild<PointsPlot*>();
        table = pane->findChild<QTableView*>();
        acts["paste"] = [this](const QString& text) { paste(text, true); };
        acts["cancelled paste"] = [this](const QString& text) { paste(text, false); };
        acts["refused paste"] = [](const QString& text) { QApplication::clipboard()->setText(lines(text)); };
        acts["open"] = [this](const QString& text) { openFile(lines(text).toUtf8()); };
        acts["open bytes"] = [this](const QString& hex) { openFile(QByteArray::fromHex(hex.toLatin1())); };
        acts["report"] = [this](const QString& name) { saveAs("Report...", 0, name); };
        acts["save"] = [this](const QString& digits) { save(digits == "full"); };
        acts["remove all"] = [this](const QString&) {
            MessageBoxDouble::reset();
            MessageBoxDouble::answers = {1};
            find<QToolButton>("Clear")->click();
        };
        acts["cell"] = [this](const QString& text) {
            const QModelIndex index = cell(text.section('=', 0, 0));
            table->setCurrentIndex(index);
            table->edit(index);
            auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            QVERIFY(edit && table->isAncestorOf(edit));
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            QTest::keyClicks(edit, text.section('=', 1));
            model->refresh(); // computed anew meanwhile
            QTest::keyClick(edit, Qt::Key_Return);
        };
        acts["cell paste"] = [this](const QString& text) {
            QApplication::clipboard()->setText(text.section('=', 1));
            table->setCurrentIndex(cell(text.section('=', 0, 0)));
            QTest::keySequence(table, QKeySequence::Paste);
        };
        acts["undo"] = [this](const QString&) { QTest::keySequence(table, QKeySequence::Undo); };
        acts["Tolerance"] = [this](const QString& text) {
            find<QDoubleSpinBox>("Tolerance")->setValue(text.toDouble());
        };
        acts["used"] = [this](const QString& row) {
            table->setCurrentIndex(model->index(row.toInt() - 1, 0));
            QTest::keyClick(table, Qt::Key_Space);
        };
        acts["select"] = [this](const QString& row) { table->selectRow(row.toInt() - 1); };
        acts["click"] = [this](const QString& row) { QTest::mouseClick(plot->canvas(), Qt::LeftButton, {}, at(row)); };
        acts["mouse"] = [this](const QString& row) {
            QMouseEvent move(QEvent::MouseMove, at(row), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(plot->canvas(), &move);
        };
        sights["scrolls"] = [this](const QString&) {
            const QFont usual = QApplication::font();
            QFont desktop = usual;
            desktop.setPixelSize(13);
            QApplication::setFont(desktop);
            panel.resize(516, 548); // as a window of 800 x 600 leaves it
            QApplication::processEvents();
            QSize hidden(0, 0);
            for (const QScrollArea* area : findAll<QScrollArea>())
                hidden += QSize(area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
            QApplication::setFont(usual);
            return QString("%1 x %2").arg(hidden.width()).arg(hidden.height());
        };
        sights["told"] = [this](const QString&) {
            const QString times = QString::number(changes.count());
            changes.clear();
            return times;
        };
        sights["columns"] = [this](const QString&) { return columns; };
        sights["cell"] = [this](const QString& text) { return cell(text).data().toString(); };
        sights["slanted"] = [this](const QString& text) {
            return cell(text).data(Qt::FontRole).value<QFont>().italic() ? "yes" : "no";
        };
        sights["coloured"] = [this](const QString& text) {
            return cell(text).data(Qt::ForegroundRole).value<QColor>().name();
        };
        sights["rows"] = [this](const QString&) { return QString::number(model->points().size()); };
        sights["picture"] = [this](const QString&) { return picture(); };
        sights["exaggeration"] = [this](const QString&) { return QString::number(plot->exaggeration().value_or(0.0)); };
        sights["ring"] = [this](const QString&) {
            return plot->selected() ? QString::number(plot->selected()->easting, 'f', 0) : "none";
        };
        sights["selected"] = [this](const QString&) {
            const QModelIndexList rows = table->selectionModel()->selectedRows();
            return rows.isEmpty() ? "none" : QString::number(rows.first().row() + 1);
        };
        sights["current"] = [this](const QString&) { return QString::number(table->currentIndex().row() + 1); };
        sights["counts"] = [this](const QString&) { return textOf(" with both pairs"); };
        sights["named"] = [this](const QString&) { return textOf("   ΔE "); };
        sights["begins"] = [this](const QString& name) { return contentOf(folder.filePath(name)).left(5); };
        sights["saved"] = [this](const QString&) {
            return QString::fromUtf8(contentOf(folder.filePath("saved.csv"))).remove(QChar(0xfeff)).replace('\n', '/');
        };
    }

    PointsPane* pane;
    PointsModel* model;
    PointsPlot* plot;
    QTableView* table;
    QTemporaryDir folder;

private:
    static QString lines(const QString& text) { return QString(text).replace('/', '\n') + '\n'; }

    void expectColumns(bool accept) {
        ModalDriver::onNextDialog([this, accept](QDialog* dialog) {
            QStringList names;
            for (const auto* box : dialog->findChild<QTableWidget*>()->findChildren<QComboBox*>())
                names << box->currentText();
            columns = names.join(' ');
            auto* buttons = dialog->findChild<QDialogButtonBox*>();
            buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
        });
    }

    void paste(const QString& text, bool accept) {
        QApplication::clipboard()->setText(lines(text));
        expectColumns(accept);
        table->setFocus();
        QTest::keySequence(table, QKeySequence::Paste);
        finish();
    }

    void openFile(const QByteArray& content) {
        const QString path = folder.filePath("points.csv");
        QVERIFY(setContent(path, content));
        ModalDriver::onNextDialog([=](QDialog* dialog) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        if (content.startsWith("name"))
            expectColumns(true);
        find<QToolButton>("Open...")->click();
        finish();
        QCOMPARE(ModalDriver::pending(), 0);
    }

    void save(bool isFull) { saveAs("Save...", isFull ? 1 : 0, "saved.csv"); }

    void saveAs(const QString& button, int filter, const QString& name) {
        const QString path = folder.filePath(name);
        QFile::remove(path); // else the dialog asks
        ModalDriver::onNextDialog([=](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            files->selectNameFilter(files->nameFilters().at(filter));
            auto* edit = files->findChild<QLineEdit*>("fileNameEdit");
            edit->setText(path);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        find<QToolButton>(button)->click();
        finish();
    }

    void finish() { QTRY_VERIFY(!pane->findChild<SlicedWork*>()->isRunning()); }

    QModelIndex cell(const QString& text) const {
        const QString name = text.section(' ', 1);
        for (int column = 0; column < model->columnCount(); ++column) {
            const QString heading = model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            if (heading.section('\n', 0, 0) == name)
                return model->index(text.section(' ', 0, 0).toInt() - 1, column);
        }
        return {};
    }

    QPoint at(const QString& row) const {
        const GridPoint place = model->points().grid(std::size_t(row.toInt() - 1));
        const double unit = LengthUnit::metres();
        return QPointF(plot->canvasMap(QwtPlot::xBottom).transform(place.easting / unit),
                       plot->canvasMap(QwtPlot::yLeft).transform(place.northing / unit))
            .toPoint();
    }

    QString picture() const {
        int red = 0, grey = 0;
        for (const PointsPlot::Mark& mark : plot->marks()) {
            red += mark.isUsed && mark.isBeyond;
            grey += !mark.isUsed;
        }
        return QString("%1, %2 red, %3 grey").arg(plot->marks().size()).arg(red).arg(grey);
    }

    QString textOf(const QString& part) const {
        for (const QLabel* label : findAll<QLabel>()) {
            if (label->text().contains(part))
                return label->text();
        }
        return "(missing)";
    }

    QString columns;
    QSignalSpy changes{panel.findChild<PointsPane*>(), SIGNAL(pointsChanged())};
};

} // namespace

/// The page "Points", over the real projection module.
class PointsPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"points_pane.txt"}); }

    void script() {
        QFETCH(QString, start);
        PointsOnScreen(start).play();
    }

    /// More points than are done at once: whatever interrupts, none is lost and no figure is another system's.
    void many() {
        constexpr std::size_t count = 60000, last = count - 1;
        PointsOnScreen screen("Check: UTM");
        QString text = "name,lat,lon";
        for (std::size_t i = 0; i < count; ++i)
            text += QString("/P%1,%2,14.5").arg(i).arg(50.0 + double(i) * 1e-5, 0, 'f', 6);
        screen.acts["paste"](text);
        const PointTable& points = screen.pane->points();
        QCOMPARE(points.size(), count);
        const double easting = points.grid(last).easting;
        QVERIFY(std::abs(easting - 464500.0) < 1000.0);
        auto* work = screen.pane->findChild<SlicedWork*>();
        const auto cancel = [&] { QMetaObject::invokeMethod(screen.pane, "_onCancel"); };

        screen.show(*PanelRecords::of("British grid"));
        QVERIFY(work->isRunning() && std::isnan(points.grid(last).easting));
        cancel();
        QVERIFY(!work->isRunning() || std::isnan(points.grid(last).easting));
        screen.show(*PanelRecords::of("UTM"));
        screen.show(*PanelRecords::of("UTM, false_east=400000")); // while the one before is computed
        QTRY_VERIFY(!work->isRunning());
        QCOMPARE(points.grid(last).easting, easting - 100000.0);

        QApplication::clipboard()->setText(text.replace('/', '\n'));
        ModalDriver::onNextDialog([](QDialog* dialog) { dialog->accept(); });
        QMetaObject::invokeMethod(screen.pane, "_onPaste");
        QVERIFY(work->isRunning());
        screen.show(*PanelRecords::of("UTM")); // while it is read
        cancel();
        QTRY_VERIFY(!work->isRunning());
        QCOMPARE(points.size(), count);
        QCOMPARE(points.grid(last).easting, easting);
    }
};

ROOM_TEST(PointsPaneTest)
#include "PointsPaneTest.moc"
