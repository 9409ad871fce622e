#include "panel/field/TextField.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/SearchBox.h"
#include "panel/record/CoordParamEditor.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtTest>
#include <QtWidgets>

namespace {

constexpr const char* key = CoordParamKey::datumName;
const QString odd = "Bär's \"Netz\", [1] %s";

} // namespace

class TextFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typing_data() {
        const Rows<bool, QByteArray> row({"isBox", "before"});
        row("edit, no text", false, {});
        row("edit", false, "Potsdam");
        row("box, no text", true, {});
        row("box", true, "Potsdam");
        row("box, a listed name", true, "Amersfoort");
    }

    void typing() {
        QFETCH(bool, isBox);
        QFETCH(QByteArray, before);
        CoordParamEditor editor;
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::Mercator);
        if (!before.isEmpty())
            record->setText(key, before.constData());
        editor.setRecord(*record);
        const QStringList untouched = recordText(editor.record());

        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* box = isBox ? new SearchBox : nullptr;
        auto* edit = isBox ? nullptr : new FieldEdit;
        QWidget* const input = isBox ? static_cast<QWidget*>(box) : edit;
        TextField& field = *(isBox ? new TextField(editor, key, box) : new TextField(editor, key, edit));
        QLineEdit* const line = isBox ? box->lineEdit() : edit;
        auto* elsewhere = new QPushButton;
        layout->addWidget(input);
        layout->addWidget(elsewhere);
        if (isBox)
            box->setNames({"Amersfoort", "Deutsches Hauptdreiecksnetz"});
        QSignalSpy edits(&field, SIGNAL(edited()));
        field.showValue();
        window.show();
        QApplication::setActiveWindow(&window);
        const auto type = [&](const QString& text) {
            input->setFocus();
            line->selectAll();
            QTest::keyClicks(input, text);
        };
        const auto value = [&] { return QString::fromLocal8Bit(editor.record().getValue(key)); };

        QCOMPARE(line->text(), QString(before));
        input->setFocus();
        line->selectAll();
        QApplication::clipboard()->setText(odd); // which no key types
        line->paste();
        QCOMPARE(value(), odd);
        QCOMPARE(PanelRecords::changedKeys(untouched, editor.record()), QStringList(key));
        QCOMPARE(edits.count(), 1);
        QTest::keyClick(input, Qt::Key_Escape);
        QCOMPARE(recordText(editor.record()), untouched);
        QCOMPARE(line->text(), QString(before));
        QVERIFY(window.isVisible());

        // What is typed stays when the user leaves, and is what the next Escape leads back to; so after Enter.
        edits.clear();
        type("Amers");
        elsewhere->setFocus();
        QCOMPARE(line->text(), QString("Amers"));
        type("Own");
        QTest::keyClick(input, Qt::Key_Return);
        type("Other");
        QTest::keyClick(input, Qt::Key_Escape);
        QCOMPARE(value(), QString("Own"));
        QCOMPARE(edits.count(), 5 + 3 + 5 + 1);

        // No text is no key; the text of before is the record of before.
        input->setFocus();
        line->selectAll();
        QTest::keyClick(input, Qt::Key_Delete);
        QVERIFY(!editor.record().getValue(key));
        QTest::keyClicks(input, "Own");
        QCOMPARE(value(), QString("Own"));
    }

    void choosing() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::fresh());
        SearchBox box;
        TextField field(editor, key, &box);
        box.setNames({"Amersfoort", "Deutsches Hauptdreiecksnetz"});
        box.show();
        QApplication::setActiveWindow(&box);
        QSignalSpy edits(&field, SIGNAL(edited()));
        box.setFocus();
        QTest::keyClicks(&box, "haupt");
        QAbstractItemView* list = box.completer()->popup();
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(editor.record().getValue(key), "Deutsches Hauptdreiecksnetz");
        QCOMPARE(edits.count(), 6);
        // The same again, and an Escape without typing, are no edits.
        Q_EMIT box.activated(1);
        QTest::keyClick(&box, Qt::Key_Escape);
        QCOMPARE(edits.count(), 6);
        QCOMPARE(box.lineEdit()->text(), QString("Deutsches Hauptdreiecksnetz"));
    }
};

ROOM_TEST(TextFieldTest)
#include "TextFieldTest.moc"
