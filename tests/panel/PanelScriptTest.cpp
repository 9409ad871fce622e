#include "catalogue/CoordParamKey.h"
#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "panel/registry/IdentityLine.h"
#include "panel/registry/NameSearch.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

/// Takes a system of the registry, as the user who types its code in the dialog.
void takeFromRegistry(const PanelOnScreen& screen, const QString& code, QDialogButtonBox::StandardButton answer,
                      bool deprecatedToo) {
    ModalDriver::onNextDialog([=](QDialog* dialog) {
        dialog->findChild<NameSearch*>()->findChild<QCheckBox*>()->setChecked(deprecatedToo);
        QTest::keyClicks(dialog->focusWidget(), code);
        dialog->findChild<QDialogButtonBox*>()->button(answer)->click();
    });
    screen.button("From registry...")->click();
    QCOMPARE(ModalDriver::pending(), 0);
}

/// Pastes lines in the dialog "From points..." and takes the shift over; `parameters` is "Seven" or "Three".
void shiftFromPoints(const PanelOnScreen& screen, const QString& lines, const QString& parameters,
                     QDialogButtonBox::StandardButton answer) {
    ModalDriver::onNextDialog([=](QDialog* dialog) {
        QApplication::clipboard()->setText(lines);
        QTest::keyClick(dialog->findChild<QTableView*>(), Qt::Key_V, Qt::ControlModifier);
        for (auto* box : dialog->findChildren<QComboBox*>())
            box->setCurrentIndex(std::max(0, box->findText(parameters)));
        dialog->findChild<QDialogButtonBox*>()->button(answer)->click();
    });
    screen.button("From points...")->click();
    QCOMPARE(ModalDriver::pending(), 0);
}

/// Pastes a text ("¶" is a new line) over the dialog's, and takes it over if it can be; what the dialog said, after the
/// text that it began with.
QString pasteDefinition(const PanelOnScreen& screen, QString text) {
    QString said;
    ModalDriver::onNextDialog([&](QDialog* dialog) {
        const auto edits = dialog->findChildren<QPlainTextEdit*>();
        said = edits[0]->toPlainText() + " -> ";
        QApplication::clipboard()->setText(text.replace("¶", "\n"));
        edits[0]->paste();
        said += edits[1]->toPlainText().replace('\n', ", ");
        auto* taken = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        taken->isEnabled() ? taken->click() : dialog->reject();
    });
    screen.button("From text...")->click();
    return said;
}

/// Saves the definition; the file name that was offered and what an import of the file lacks.
QString saveDefinition(const PanelOnScreen& screen) {
    QTemporaryDir folder;
    QString offered;
    ModalDriver::onNextDialog([&](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        offered = QFileInfo(files->selectedFiles().first()).fileName();
        auto* name = files->findChild<QLineEdit*>("fileNameEdit");
        name->setText(folder.filePath("saved"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    screen.button("Save as .prj")->click();
    const DictionaryGuard imported;
    const bool isRead = WktToCoordParam::write(contentOf(folder.filePath("saved.prj")), imported.get());
    return offered + " lacks " + (isRead ? recordDifferences(screen.record(), *imported).join(", ") : "all");
}

/// What the dialog for a group begins with: the group and the dialect.
QString groupToSave(const PanelOnScreen& screen) {
    QStringList chosen;
    ModalDriver::onNextDialog([&](QDialog* dialog) {
        for (const auto* box : dialog->findChildren<QComboBox*>())
            chosen << box->currentText();
        dialog->reject();
    });
    screen.button("Save group...")->click();
    return chosen.join(", ");
}

} // namespace

/// What the panel's tabs do, over the real projection module.
class PanelScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() {
        Script::addRows({"field/field_row.txt", "field/text_field.txt", "field/check_field.txt", "field/search_box.txt",
                         "field/copy_button.txt", "ellipsoid_tab.txt", "projection_tab.txt", "datum_shift_tab.txt",
                         "height_tab.txt", "definition_tab.txt"});
    }

    void script() {
        QFETCH(QString, start);
        PanelOnScreen screen(start);
        const QDir models(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/GeoidData");
        const QString model = models.filePath("PanelScriptTest.ggf");
        QWidget otherWindow;
        screen.acts["other window"] = [&](const QString&) {
            otherWindow.show();
            QApplication::setActiveWindow(&otherWindow);
        };
        screen.acts["disable"] = [&](const QString&) { screen.panel.setEnabled(false); };
        screen.acts["add geoid"] = [&](const QString& name) {
            screen.catalogue.addTestGeoid(name.toLatin1(), "PanelScriptTest.ggf", "GRS 1980", "0");
        };
        screen.acts["delete geoid"] = [&](const QString& name) { screen.catalogue.deleteGeoid(name.toLatin1()); };
        screen.acts["write model"] = [&](const QString&) { QVERIFY(models.mkpath(".") && setContent(model, "model")); };
        screen.acts["remove model"] = [&](const QString&) { QVERIFY(QFile::remove(model)); };
        screen.acts["add ellipsoid"] = [&](const QString& text) {
            const QByteArrayList values = text.toLatin1().split(' ');
            IDictionary* added = screen.catalogue.addTestEllipsoid(values[0], "", "", "0");
            dic_set_value(added, CoordParamKey::ellipsoidA, "%f", values[1].toDouble());
            dic_set_value(added, CoordParamKey::ellipsoidF, "%f", values[2].toDouble());
        };
        screen.acts["delete ellipsoid"] = [&](const QString& name) {
            screen.catalogue.deleteEllipsoid(name.toLatin1());
        };
        screen.acts["registry"] = [&](const QString& code) {
            takeFromRegistry(screen, code, QDialogButtonBox::Ok, false);
        };
        screen.acts["registry cancelled"] = [&](const QString& code) {
            takeFromRegistry(screen, code, QDialogButtonBox::Cancel, false);
        };
        screen.acts["registry of deprecated ones"] = [&](const QString& code) {
            takeFromRegistry(screen, code, QDialogButtonBox::Ok, true);
        };
        screen.acts["three from points"] = [&](const QString& lines) {
            shiftFromPoints(screen, lines, "Three", QDialogButtonBox::Ok);
        };
        screen.acts["from points cancelled"] = [&](const QString& lines) {
            shiftFromPoints(screen, lines, "Three", QDialogButtonBox::Cancel);
        };
        screen.acts["add group"] = [&](const QString& name) { screen.catalogue.addTestGroup(name); };
        screen.sights["group to save"] = [&](const QString&) { return groupToSave(screen); };
        const auto isSearching = [&] { // in the registry
            return screen.panel.findChild<IdentityLine*>()->findChild<QTimer*>()->isActive();
        };
        screen.acts["search"] = [&](const QString&) { QTRY_VERIFY_WITH_TIMEOUT(!isSearching(), 60000); };
        screen.acts["look at a dialog"] = [&](const QString& milliseconds) {
            QDialog dialog;
            dialog.setModal(true);
            dialog.show();
            QTest::qWait(milliseconds.toInt());
        };
        screen.sights["searching"] = [&](const QString&) { return isSearching() ? "yes" : "no"; };
        QString said;
        screen.acts["paste"] = [&](const QString& text) { said = pasteDefinition(screen, text); };
        screen.sights["dialog"] = [&](const QString&) { return said; };
        screen.sights["saved"] = [&](const QString&) { return saveDefinition(screen); };
        MessageBoxDouble::reset();
        screen.play();
        QVERIFY(MessageBoxDouble::messages.isEmpty());
    }
};

ROOM_TEST(PanelScriptTest)
#include "PanelScriptTest.moc"
