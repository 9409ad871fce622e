#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
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
        PanelOnScreen screen(*SampleRecord::named("Mercator with parallel")
                                  .with("name", "Mine")
                                  .with("unknown_key", "kept")
                                  .with("remark", "mine")
                                  .record(),
                             PanelOnScreen::Definition);
        const auto choose = [&](const QString& search, bool accept, bool deprecatedToo = false) {
            ModalDriver::onNextDialog([=](QDialog* dialog) {
                dialog->findChild<QCheckBox*>()->setChecked(deprecatedToo);
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
        QCOMPARE(screen.value("datum_name"), "Ordnance Survey of Great Britain 1936");
        const QRegularExpression source("^EPSG:27700, EPSG v[0-9.]+, 20[0-9]{2}-[0-9]{2}-[0-9]{2}$");
        QVERIFY(source.match(screen.value("source")).hasMatch());
        QCOMPARE(screen.shown("Where from"), QString(screen.value("source")));
        QCOMPARE(screen.value("remark"), "mine");
        QVERIFY(screen.find<QPlainTextEdit>("WKT")->toPlainText().contains("DATUM[\"D_OSGB_1936\""));
        QVERIFY(screen.find<QPlainTextEdit>("PROJ definition")->toPlainText().contains("+k_0=0.9996012717 "));
        // A system without a shift takes the old one away.
        choose("25833", true);
        QCOMPARE(screen.value("_7type"), "0");
        QVERIFY(!screen.value("_7dx"));
        QCOMPARE(screen.value("datum_name"), "European Terrestrial Reference System 1989");
        QCOMPARE(screen.edits.count(), 2);
        choose("3411", true, true); // whose datum the registry leaves open
        QVERIFY(!screen.value("datum_name") && QByteArray(screen.value("source")).startsWith("EPSG:3411, "));

        PanelOnScreen readOnly(*SampleRecord::named("UTM").record(), PanelOnScreen::Definition, true);
        QVERIFY(!readOnly.find<QPushButton>("From registry...")->isEnabled());
    }

    void notes() {
        // A system without a projection can be noted on as well.
        const SampleRecord& sample = SampleRecord::named("UTM").with("project_type", "5").with("source", "a map");
        const QStringList before = recordText(*sample.record());
        PanelOnScreen screen(*sample.record(), PanelOnScreen::Definition);
        QCOMPARE(screen.shown("Where from"), QString("a map"));
        QCOMPARE(recordText(screen.record()), before);
        screen.type("Where from", "sheet 12, 1936");
        screen.field("Remark")->setFocus();
        QApplication::clipboard()->setText("Bär's \"copy\""); // which no key types
        screen.field("Remark")->paste();
        QCOMPARE(QString::fromLocal8Bit(screen.value("source")), QString("sheet 12, 1936"));
        QCOMPARE(QString::fromLocal8Bit(screen.value("remark")), QString("Bär's \"copy\""));
        QCOMPARE(PanelRecords::changedKeys(before, screen.record()), QStringList({"remark", "source"}));
        QTest::mouseClick(screen.button("Back to the values before"), Qt::LeftButton);
        QCOMPARE(recordText(screen.record()), before);
        QVERIFY(screen.shown("Remark").isEmpty());

        const PanelOnScreen readOnly(*sample.record(), PanelOnScreen::Definition, true);
        readOnly.type("Remark", "x");
        QCOMPARE(recordText(readOnly.record()), before);
    }
};

ROOM_TEST(DefinitionTabTest)
#include "DefinitionTabTest.moc"
