#include "panel/save/SaveGroupDialog.h"

#include "catalogue/CoordParamKey.h"
#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "platform/projection/WktDialect.h"
#include "support/Files.h"
#include "support/OnScreen.h"
#include "support/PanelRecords.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProgressBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// The dialog over two groups, and a folder. A script starts with the shown record.
///   done: "folder" types its path; "file=name", "directory=name" and "link=name" (to "target", which is not there)
///         make one in it; "remove folder"; "settle" waits for the end of what is under way
///   seen: "rows", "cell:row,column", "closed"; "content:file"; "lacks:file": what an import lacks of the shown record
class SaveGroupOnScreen : public OnScreen {
public:
    explicit SaveGroupOnScreen(const QString& start) : shown(PanelRecords::of(start)) {
        add("Other", "UTM", "UTM");
        add("Other", "British grid", "British grid, false_east=9, false_north=8");
        add("Mine", "A/B", "UTM");
        add("Mine", "a:b", "Mercator");
        add("Mine", "British grid", "British grid");
        add("Mine", "No method", "Lambert two parallels, parallel_1_lat=30, parallel_2_lat=-30");
        dialects.addItem("WKT 1 (GDAL)", int(WktDialect::Wkt1Gdal));
        dialects.addItem("WKT 1 (ESRI)", int(WktDialect::Wkt1Esri));
        dialog = std::make_unique<SaveGroupDialog>(catalogue, *shown, dialects, nullptr);
        open(*dialog);
        acts["folder"] = [this](const QString&) { type("Folder", folder.path()); };
        acts["file"] = [this](const QString& name) { QVERIFY(setContent(folder.filePath(name), "old")); };
        acts["directory"] = [this](const QString& name) { QVERIFY(QDir(folder.path()).mkdir(name)); };
        acts["link"] = [this](const QString& name) {
            QVERIFY(QFile::link(folder.filePath("target"), folder.filePath(name)));
        };
        acts["remove folder"] = [this](const QString&) { QVERIFY(folder.remove()); };
        acts["settle"] = [this](const QString&) {
            QCoreApplication::processEvents(); // the last file names
            QTRY_VERIFY(dialog->findChild<QProgressBar*>()->isHidden());
        };
        sights["rows"] = [this](const QString&) { return QString::number(table()->model()->rowCount()); };
        sights["cell"] = [this](const QString& cell) {
            return table()
                ->model()
                ->index(cell.section(',', 0, 0).toInt(), cell.section(',', 1).toInt())
                .data()
                .toString();
        };
        sights["closed"] = [this](const QString&) { return dialog->isHidden() ? "yes" : "no"; };
        sights["content"] = [this](const QString& name) { return QString::fromUtf8(contentOf(folder.filePath(name))); };
        sights["lacks"] = [this](const QString& name) {
            const DictionaryGuard imported;
            const bool isRead = WktToCoordParam::write(contentOf(folder.filePath(name)), imported.get());
            return isRead ? recordDifferences(*shown, *imported).join(", ") : "all";
        };
    }

private:
    void add(const QString& group, const QString& name, const QString& record) {
        if (!catalogue.group(group))
            catalogue.addTestGroup(group);
        catalogue.group(group)
            ->systems.append(name, PanelRecords::of(record).get())
            ->setText(CoordParamKey::name, name.toLocal8Bit());
    }

    QTableView* table() const { return dialog->findChild<QTableView*>(); }

    QTemporaryDir folder;
    DictionaryGuard shown;
    RecordingCatalogue catalogue;
    QComboBox dialects;
    std::unique_ptr<SaveGroupDialog> dialog;
};

} // namespace

class SaveGroupDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"save_group.txt"}); }

    void script() {
        QFETCH(QString, start);
        SaveGroupOnScreen(start).play();
    }
};

ROOM_TEST(SaveGroupDialogTest)
#include "SaveGroupDialogTest.moc"
