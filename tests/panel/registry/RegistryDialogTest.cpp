#include "panel/registry/RegistryDialog.h"

#include "catalogue/CoordParamKey.h"
#include "panel/registry/FoundSystemsModel.h"
#include "platform/projection/IProjectionModule.h"
#include "support/OnScreen.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace {

/// The dialog, and a catalogue with two systems in the group "Sites".
///   done: "clipboard=text", "paste" by its keys, "choose=row"
///   seen: "rows" listed; "row:1" or "row:" with a code or "own", once the search is done; "chosen" row's code;
///         "details"; "value:key" of what is taken over
class DialogOnScreen : public OnScreen {
public:
    DialogOnScreen() : dialog(*projectionModule(), &catalogue, nullptr) {
        catalogue.addTestGroup("Sites");
        add("Mill", "false_east", "100000");
        add("Old mill", "_7type", "0");
        open(dialog);
        acts["clipboard"] = [](const QString& text) { QApplication::clipboard()->setText(text); };
        acts["paste"] = [](const QString&) { QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste); };
        acts["choose"] = [this](const QString& row) { table()->selectRow(row.toInt() - 1); };
        sights["rows"] = [this](const QString&) { return QString::number(table()->model()->rowCount()); };
        sights["row"] = [this](const QString& name) {
            [this] { QTRY_VERIFY(findStarting("Systems found: ") || findStarting("No system ")); }();
            return rowOf(name);
        };
        sights["chosen"] = [this](const QString&) {
            return table()->currentIndex().siblingAtColumn(FoundSystemsModel::Code).data().toString();
        };
        sights["details"] = [this](const QString&) {
            const QLabel* const label = findStarting("", " from the place");
            return label ? label->text() : "";
        };
        sights["value"] = [this](const QString& key) {
            const DictionaryGuard record;
            const char* const value =
                dialog.write(record.get()) ? record->getValue(key.toLatin1()) : "nothing is chosen";
            return value ? QString::fromLocal8Bit(value) : "(none)";
        };
    }

private:
    void add(const char* name, const char* key, const char* value) {
        const DictionaryGuard record = SampleRecord::named("British grid").with(key, value).record();
        record->setText(CoordParamKey::name, name);
        record->setText(CoordParamKey::remark, "its own");
        catalogue.group("Sites")->systems.append(name, record.get());
    }

    QTableView* table() const { return findAll<QTableView>().first(); }

    const QLabel* findStarting(const QString& start, const QString& within = QString()) const {
        for (const QLabel* label : findAll<QLabel>()) {
            if (label->text().startsWith(start) && label->text().contains(within))
                return label;
        }
        return nullptr;
    }

    QString rowOf(const QString& name) const {
        const QAbstractItemModel& model = *table()->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                if (!table()->isColumnHidden(column))
                    cells << model.index(row, column).data().toString();
            }
            if (name == QString::number(row + 1) || cells.contains(name))
                return cells.join(" - ").trimmed();
        }
        return QString();
    }

    RecordingCatalogue catalogue;
    RegistryDialog dialog;
};

} // namespace

class RegistryDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"place_search.txt"}); }
    void script() {
        DialogOnScreen screen;
        screen.play();
    }

    void onlyWhatIsHeldIsTaken_data() {
        const Rows<QString, bool> row({"code", "isHeld"});
        row("British grid", "27700", true);
        row("Krovak", "5514", false);
    }

    void onlyWhatIsHeldIsTaken() {
        QFETCH(QString, code);
        QFETCH(bool, isHeld);
        RegistryDialog dialog(*projectionModule(), nullptr, nullptr);
        dialog.show();
        QTest::keyClicks(dialog.focusWidget(), code);
        QCOMPARE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(), isHeld);
        QString texts;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            texts += label->text();
        QCOMPARE(texts.contains("None of the methods holds this projection exactly"), !isHeld);
    }
};

ROOM_TEST(RegistryDialogTest)
#include "RegistryDialogTest.moc"
