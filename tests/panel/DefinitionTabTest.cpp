#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTemporaryDir>

/// The tab "Definition", over the real projection module.
class DefinitionTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { MessageBoxDouble::reset(); }

    void definitionTexts() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Definition);
        auto* proj = screen.find<QPlainTextEdit>("PROJ definition");
        auto* wkt = screen.find<QPlainTextEdit>("WKT");
        QVERIFY(proj->isReadOnly() && wkt->isReadOnly());
        QVERIFY(proj->toPlainText().startsWith("+proj=tmerc +lat_0=49 +lon_0=-2 +k_0=0.9996012717 "));
        auto* dialect = screen.find<QComboBox>("WKT dialect");
        QCOMPARE(dialect->currentText(), QString("WKT 1 (ESRI)"));
        const char* const starts[] = {"PROJCS[\"British grid\",", "PROJCS[\"British grid\",", "BOUNDCRS["};
        const char* const remarks[] = {"", "Does not come back with an import of this form: the datum shift.", ""};
        for (int i = 0; i < 3; ++i) {
            dialect->setCurrentIndex(i);
            Q_EMIT dialect->activated(i);
            QVERIFY(wkt->toPlainText().startsWith(starts[i]));
            QCOMPARE(wkt->toPlainText().contains("TOWGS84[446.448"), i == 0);
            QCOMPARE(screen.messages().join('|'), QString(remarks[i]));
        }
        QStringList copied;
        for (auto* button : screen.findAll<QPushButton>()) {
            if (button->text() == "Copy") {
                button->click();
                QCOMPARE(button->text(), QString("Copied"));
                copied << QApplication::clipboard()->text();
            }
        }
        QCOMPARE(copied, QStringList({proj->toPlainText(), wkt->toPlainText()}));
    }

    void noProjection() {
        PanelOnScreen screen(*SampleRecord::named("UTM").with("project_type", "5").record(), PanelOnScreen::Definition);
        QCOMPARE(screen.messages().size(), 1);
        for (const QPlainTextEdit* text : screen.panel.findChildren<QPlainTextEdit*>())
            QVERIFY(text->toPlainText().isEmpty());
        screen.show(*SampleRecord::named("UTM").record());
        QVERIFY(!screen.find<QPlainTextEdit>("WKT")->toPlainText().isEmpty());
    }

    void definitionIsSaved() {
        QTemporaryDir folder;
        PanelOnScreen screen(*SampleRecord::named("British grid").with("name", "A/B: grid").record(),
                             PanelOnScreen::Definition);
        QString offered;
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            offered = QFileInfo(files->selectedFiles().first()).fileName();
            files->setDirectory(folder.path());
            auto* name = files->findChild<QLineEdit*>("fileNameEdit");
            name->setText(folder.filePath("saved"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        screen.find<QPushButton>("Save as .prj")->click();
        QCOMPARE(offered, QString("A_B_ grid.prj"));
        const DictionaryGuard imported;
        QVERIFY(WktToCoordParam::write(contentOf(folder.filePath("saved.prj")), imported.get()));
        // ESRI's dialect, with which the list of dialects starts, has no datum shift.
        QCOMPARE(recordDifferences(screen.record(), *imported), QStringList("the datum shift"));
        QVERIFY(MessageBoxDouble::messages.isEmpty());
    }

    void fromRegistry() {
        PanelOnScreen screen(
            *SampleRecord::named("Mercator with parallel").with("name", "Mine").with("unknown_key", "kept").record(),
            PanelOnScreen::Definition);
        const auto choose = [&](const QString& search, bool accept) {
            ModalDriver::onNextDialog([=](QDialog* dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit*>(), search);
                auto* buttons = dialog->findChild<QDialogButtonBox*>();
                buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
            });
            screen.find<QPushButton>("From registry...")->click();
            QCOMPARE(ModalDriver::pending(), 0);
        };
        choose("28992", false);
        QCOMPARE(screen.edits.count(), 0);
        choose("27700", true);
        QCOMPARE(screen.edits.count(), 1);
        QCOMPARE(screen.value("name"), "Mine");
        QCOMPARE(screen.value("unknown_key"), "kept");
        QCOMPARE(screen.value("project_type"), "1");
        QCOMPARE(screen.value("org_lat"), "49.000000");
        QCOMPARE(screen.number("factor"), 0.9996012717);
        QCOMPARE(screen.value("_7type"), "2"); // the registry's first shift
        QCOMPARE(screen.value("_7dx"), "446.448000");
        QVERIFY(screen.find<QPlainTextEdit>("PROJ definition")->toPlainText().contains("+k_0=0.9996012717 "));
        // A system without a shift takes the old one away.
        choose("25833", true);
        QCOMPARE(screen.value("_7type"), "0");
        QVERIFY(!screen.value("_7dx"));
        QCOMPARE(screen.edits.count(), 2);

        PanelOnScreen readOnly(*SampleRecord::named("UTM").record(), PanelOnScreen::Definition, true);
        QVERIFY(!readOnly.find<QPushButton>("From registry...")->isEnabled());
    }
};

ROOM_TEST(DefinitionTabTest)
#include "DefinitionTabTest.moc"
