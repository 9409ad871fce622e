#include "catalogue/Dictionary.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordText.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "tree/DlgCoordSysGroups.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtWidgets>

namespace {

const char* const geographic = R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
                               R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])";

QByteArray projected(const QByteArray& name) {
    return "PROJCS[\"" + name + "\"," + geographic +
           R"(,PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",9],)"
           R"(PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
           R"(UNIT["metre",1]])";
}

const QString failed = "Warning|Import file failed!";
const QString notProjected = "Warning|Import file isn't projection coordinates!";
const QString exists = "Warning|The Imported projection coordinates already exist in the group!";

class SlowCatalogue : public RecordingCatalogue {
public:
    ICoordSysGroup* getGroup(const char* name) override {
        QThread::msleep(20);
        return RecordingCatalogue::getGroup(name);
    }
};

} // namespace

class ImportCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const QList<QPair<QString, QByteArray>> files{
            {"one.prj", projected("One")},
            {"one again.txt", projected("One") + "\r\n \r\n"},
            {"two.txt", projected("Two")},
            {"same.prj", projected("same")},
            {"commas.prj", projected("A,B,C")},
            {"hyphens.prj", projected("A-B-C")},
            {"umlaut.prj", projected("Österreich")},
            {"nul.prj", projected("Nul") + QByteArray(1, '\0') + "PROJCS[garbage"},
            {"nul first.prj", QByteArray(1, '\0') + projected("Hidden")},
            {"geographic.prj", geographic},
            {"rubbish.txt", "PROJCS[\"x\",\x01\x02\xff"},
            {"empty.prj", ""},
        };
        for (const auto& file : files)
            QVERIFY(setContent(folder.filePath(file.first), file.second));
    }

    void import_data() {
        // Whether a system of the target group was clicked before, files, messages, systems added in their order.
        const Rows<bool, QStringList, QStringList, QStringList> row({"clicked", "files", "messages", "added"});
        row("cancelled", true, {}, {}, {});
        row("messages in file order", true, {"same.prj", "rubbish.txt", "two.txt", "geographic.prj"},
            {exists, failed, notProjected}, {"Two"});
        row("twice", true, {"one.prj", "one again.txt"}, {exists}, {"One"});
        row("commas", true, {"commas.prj", "hyphens.prj"}, {exists}, {"A-B-C"});
        row("non-ASCII name", true, {"umlaut.prj"}, {}, {"Österreich"});
        row("up to the first NUL", true, {"nul.prj", "nul first.prj"}, {failed}, {"Nul"});
        row("empty file", true, {"empty.prj"}, {failed}, {});
        row("no group: silent, after earlier messages", false, {"geographic.prj", "one.prj", "rubbish.txt"},
            {notProjected}, {});
    }

    void import() {
        QFETCH(bool, clicked);
        QFETCH(QStringList, files);
        QFETCH(QStringList, messages);
        QFETCH(QStringList, added);
        startTree();
        if (clicked)
            tree->selectFirstCoordSystem();
        // The target is the group announced last, not the item on which the menu was opened.
        tree->setCurrentItem(tree->topLevelItem(0)->child(1));
        catalogue->takeCalls();
        const int otherDictionaries = dictionary_alive_count() - catalogue->recordCount();
        chooseFiles(files);
        runImport();

        QCOMPARE(MessageBoxDouble::texts(), messages);
        for (const auto& message : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(message.parent, static_cast<QWidget*>(tree.get()));
        const QStringList calls = catalogue->takeCalls();
        QStringList expectedAdds;
        for (const QString& name : added)
            expectedAdds << "A.addCoordSystem(" + name + ")";
        QCOMPARE(calls.filter("addCoordSystem"), expectedAdds);
        QCOMPARE(calls.filter("getGroupNames").count(), added.isEmpty() ? 0 : 1);
        QCOMPARE(calls.filter("treeItemClicked").count(), 0);
        QCOMPARE(calls.filter("dataChanged").count(), added.isEmpty() ? 0 : 1);
        if (!added.isEmpty()) {
            QCOMPARE(calls.last(), QString("dataChanged()"));
            QCOMPARE(tree->currentItem(), tree->topLevelItem(0));
            const QStringList record = recordText(*catalogue->group("A")->systems.find(added.first()));
            QVERIFY(record.contains("org_lon=9.000000[9]"));
            QVERIFY(record.contains("factor=0.999600[0.99960000000000004]"));
        }
        QCOMPARE(dictionary_alive_count() - catalogue->recordCount(), otherDictionaries);
    }

    void longImportShowsProgressAndCanBeCancelled() {
        // 2 s of work, of which Cancel after the first half second spares the user the rest.
        QStringList files;
        for (int i = 0; i < 100; ++i) {
            files << QString("%1.prj").arg(i, 3, 10, QLatin1Char('0'));
            QVERIFY(QFile::copy(folder.filePath("one.prj"), folder.filePath(files.last())));
        }
        startTree(std::make_unique<SlowCatalogue>());
        tree->selectFirstCoordSystem();
        chooseFiles(files);
        QString label;
        ModalDriver::onNextDialog([&label](QDialog* dialog) {
            auto* progress = qobject_cast<QProgressDialog*>(dialog);
            label = progress->labelText();
            progress->cancel();
        });
        runImport();

        // One was added; every other file until Cancel had its message.
        const int imported = MessageBoxDouble::messages.count() + 1;
        QCOMPARE(label, files[imported]);
        QVERIFY2(imported < files.count() - 1, "the rest is left out after Cancel");
        QVERIFY(catalogue->group("A")->systems.find("One"));
        QCOMPARE(catalogue->takeCalls().last(), QString("dataChanged()"));
        QCOMPARE(ModalDriver::pending(), 0);
    }

private:
    void startTree(std::unique_ptr<RecordingCatalogue> itsCatalogue = std::make_unique<RecordingCatalogue>()) {
        tree.reset();
        catalogue = std::move(itsCatalogue);
        catalogue->addTestGroup("A", {"same"});
        catalogue->addTestGroup("B");
        tree = std::make_unique<DlgCoordSysGroups>(catalogue.get(), nullptr);
        connect(tree.get(), &DlgCoordSysGroups::treeItemClicked, this,
                [this] { catalogue->calls << "treeItemClicked()"; });
        connect(tree.get(), &DlgCoordSysGroups::dataChanged, this, [this] { catalogue->calls << "dataChanged()"; });
        MessageBoxDouble::reset();
    }

    void chooseFiles(const QStringList& names) {
        QStringList quoted;
        for (const QString& name : names)
            quoted << '"' + folder.filePath(name) + '"';
        ModalDriver::onNextDialog([quoted](QDialog* dialog) {
            auto* fileDialog = qobject_cast<QFileDialog*>(dialog);
            QCOMPARE(fileDialog->windowTitle(), QString("Selecte WKT file"));
            QCOMPARE(fileDialog->nameFilters(), (QStringList{"*.txt", "*.prj"}));
            QCOMPARE(fileDialog->fileMode(), QFileDialog::ExistingFiles);
            if (quoted.isEmpty())
                return fileDialog->reject();
            fileDialog->findChild<QLineEdit*>("fileNameEdit")->setText(quoted.join(' '));
            QMetaObject::invokeMethod(fileDialog, "accept");
        });
    }

    void runImport() const {
        for (QAction* action : tree->findChildren<QAction*>())
            if (action->text() == "ImportCoordSys")
                action->trigger();
    }

    QTemporaryDir folder;
    std::unique_ptr<RecordingCatalogue> catalogue;
    std::unique_ptr<DlgCoordSysGroups> tree;
};

ROOM_TEST(ImportCommandTest)
#include "ImportCommandTest.moc"
