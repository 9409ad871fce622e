#include "catalogue/Dictionary.h"
#include "support/Files.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordText.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"
#include "tree/DlgCoordSysGroups.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegExp>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

const char* const geographic = R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
                               R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])";

QByteArray projected(const QByteArray& name) {
    return "PROJCS[\"" + name + "\"," + geographic +
           R"(,PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",9],)"
           R"(PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
           R"(UNIT["metre",1]])";
}

/// The texts of a table's column.
QStringList listed(const QByteArray& column) {
    return QString(column).split(", ", Qt::SkipEmptyParts);
}

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
            {"up to nul.prj", projected("Nul") + QByteArray(1, '\0') + "PROJCS[garbage"},
            {"nul first.prj", QByteArray(1, '\0') + projected("Hidden")},
            {"geographic.prj", geographic},
            {"rubbish.txt", "PROJCS[\"x\",\x01\x02\xff"},
            {"empty.prj", ""},
        };
        for (const auto& file : files)
            QVERIFY(setContent(folder.filePath(file.first), file.second));
    }

    void import_data() { textRows("imports.txt"); }
    void import() {
        const auto [title, clicked, files, messages, added] = textRow<5>();
        startTree();
        if (!clicked.isEmpty())
            tree->selectFirstCoordSystem();
        // The target is the group announced last, not the item on which the menu was opened.
        tree->setCurrentItem(tree->topLevelItem(0)->child(1));
        catalogue->takeCalls();
        const int otherDictionaries = dictionary_alive_count() - catalogue->recordCount();
        QStringList released; // the messages that no record of the file outlives
        MessageBoxDouble::whileShown = [&] {
            if (dictionary_alive_count() - catalogue->recordCount() == otherDictionaries)
                released << MessageBoxDouble::texts().last();
        };
        chooseFiles(listed(files));
        runImport();

        QStringList shown, shownBeforeTheRecord;
        for (const QString& message : listed(messages)) {
            shown << "DlgCoordSysGroups:Warning|DlgCoordSysGroups:" + message;
            if (!message.contains("exist"))
                shownBeforeTheRecord << shown.last();
        }
        QCOMPARE(MessageBoxDouble::texts(), shown);
        QCOMPARE(released, shownBeforeTheRecord);
        for (const auto& message : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(message.parent, static_cast<QWidget*>(tree.get()));
        // Each addition; where there are any, the tree built anew with its root current, and one announcement.
        QStringList expected = listed(added).replaceInStrings(QRegExp("(.+)"), "A.addCoordSystem(\\1)");
        if (!expected.isEmpty()) {
            expected << "getGroupNames()"
                     << "dataChanged()";
            QCOMPARE(tree->currentItem(), tree->topLevelItem(0));
            const QString record = recordText(*catalogue->group("A")->systems.find(listed(added).first())).join(' ');
            QVERIFY(record.contains("org_lon=9.000000[9] ") &&
                    record.contains("factor=0.999600[0.99960000000000004] "));
        }
        QCOMPARE(catalogue->takeCalls().filter(QRegExp("addCoord|getGroupNames|treeItem|dataChanged")), expected);
        QCOMPARE(dictionary_alive_count() - catalogue->recordCount(), otherDictionaries);
    }

    void longImportShowsProgressAndCanBeCancelled() {
        // 2 s of work, of which Cancel after the first half second spares the user the rest.
        const QStringList files = copies(100, [](int i) { return projected("System " + QByteArray::number(i)); });
        startTree(std::make_unique<SlowCatalogue>());
        tree->selectFirstCoordSystem();
        chooseFiles(files);
        QString label;
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* progress = qobject_cast<QProgressDialog*>(dialog);
            QCOMPARE(progress->windowTitle(), QString("DlgCoordSysGroups:ImportCoordSys"));
            QCOMPARE(progress->findChild<QPushButton*>()->text(), QString("DlgCoordSysGroups:Cancel"));
            QCOMPARE(progress->parentWidget(), tree.get());
            QCOMPARE(progress->maximum(), 100);
            QCOMPARE(progress->findChild<QLabel*>()->textFormat(), Qt::PlainText);
            label = progress->labelText();
            QCOMPARE(files[progress->value()], label);
            progress->cancel();
        });
        runImport();

        const int imported = catalogue->group("A")->systems.count() - 1;
        QCOMPARE(label, files[imported]);
        QVERIFY2(imported > 0 && imported < files.count() - 1, "the rest is left out after Cancel");
        QCOMPARE(MessageBoxDouble::texts(), QStringList());
        QCOMPARE(catalogue->takeCalls().last(), QString("dataChanged()"));
        QCOMPARE(ModalDriver::pending(), 0);
    }

    /// Message on message: from the fourth on the progress window comes between them, long enough to press Cancel, and
    /// is never in the way of a message.
    void messagesLeaveCancelInReach() {
        startTree();
        chooseFiles(copies(6, [](int) { return QByteArray("rubbish"); }));
        const auto progressWindow = [] {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->isVisible() && qobject_cast<QProgressDialog*>(window))
                    return window;
            return static_cast<QWidget*>(nullptr);
        };
        QElapsedTimer sinceMessage;
        qint64 pause = 0;
        MessageBoxDouble::whileShown = [&] {
            QVERIFY(!progressWindow());
            if (MessageBoxDouble::messages.count() == 4) {
                pause = sinceMessage.elapsed();
                QTimer::singleShot(100, qApp, [&] {
                    QVERIFY(progressWindow());
                    auto* cancel = progressWindow()->findChild<QPushButton*>();
                    QTest::keyClick(progressWindow(), Qt::Key_Return); // of an impatient user
                    QVERIFY(progressWindow());
                    QTest::mouseClick(cancel, Qt::LeftButton);
                });
            }
            sinceMessage.start();
        };
        runImport();
        QCOMPARE(MessageBoxDouble::messages.count(), 4);
        QVERIFY2(pause >= 900, QByteArray::number(pause));
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

    /// The names of `count` new files with the content that `contentOf` gives for each.
    QStringList copies(int count, const std::function<QByteArray(int)>& contentOf) const {
        QStringList files;
        for (int i = 0; i < count; ++i) {
            files << QString("%1.prj").arg(i, 3, 10, QLatin1Char('0'));
            setContent(folder.filePath(files.last()), contentOf(i));
        }
        return files;
    }

    void chooseFiles(const QStringList& names) {
        QStringList quoted;
        for (const QString& name : names)
            quoted << '"' + folder.filePath(name) + '"';
        ModalDriver::onNextDialog([this, quoted](QDialog* dialog) {
            auto* fileDialog = qobject_cast<QFileDialog*>(dialog);
            QCOMPARE(fileDialog->windowTitle(), QString("DlgCoordSysGroups:Selecte WKT file"));
            QCOMPARE(fileDialog->parentWidget(), tree.get());
            QCOMPARE(fileDialog->selectedNameFilter(), QString("*.txt"));
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
            if (action->text() == "DlgCoordSysGroups:ImportCoordSys")
                action->trigger();
    }

    const MarkingTranslator translator;
    QTemporaryDir folder;
    std::unique_ptr<RecordingCatalogue> catalogue;
    std::unique_ptr<DlgCoordSysGroups> tree;
};

ROOM_TEST(ImportCommandTest)
#include "ImportCommandTest.moc"
