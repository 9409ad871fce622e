#include "panel/field/FieldRow.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QtTest>
#include <QtWidgets>

namespace Key = CoordParamKey;

namespace {

const ParamField& fieldOf(ProjectionMethod method, const QByteArray& key) {
    for (const ParamField* field : {&DatumFields::semiMajorAxis(), &DatumFields::inverseFlattening()}) {
        if (field->is(key))
            return *field;
    }
    for (const ParamField& field : DatumFields::shift()) {
        if (field.is(key))
            return field;
    }
    return *ProjectionFields::find(int(method))->field(key);
}

/// A form with one field and a button to go to.
class Form {
public:
    Form(ProjectionMethod method, const QByteArray& key) : row(editor, false, grid, 0), edits(&row, SIGNAL(edited())) {
        editor.setRecord(*PanelRecords::imported(method));
        row.setField(&fieldOf(method, key));
        row.showValue();
        grid->addWidget(&elsewhere, 2, 0);
        window.show();
        QApplication::setActiveWindow(&window);
        edit = window.findChild<FieldEdit*>();
        edit->setFocus();
        before = recordText(editor.record());
    }

    /// Replaces the text by typing.
    void type(const QString& text) const {
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    QStringList record() const { return recordText(editor.record()); }
    QByteArray value() const { return editor.record().getValue(row.field()->key); }
    QString message() const { return window.findChild<MessageLine*>()->text(); }

    QWidget window;
    QGridLayout* grid = new QGridLayout(&window);
    CoordParamEditor editor;
    FieldRow row;
    QPushButton elsewhere;
    FieldEdit* edit;
    QSignalSpy edits;
    QStringList before;
};

} // namespace

class FieldRowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { AngleText::setNotation(AngleNotation::DecimalDegrees); }

    void returnsToTheValueBefore_data() {
        const Rows<QByteArray, QString, QString, QString> row({"key", "good", "bad", "range"});
        for (const QByteArrayList& line : textTable("refused_values.txt"))
            row(line.join(' '), line[0], line[1], QByteArray(line[2]).replace('~', ' '), line[3]);
    }

    void returnsToTheValueBefore() {
        QFETCH(QByteArray, key);
        QFETCH(QString, good);
        QFETCH(QString, bad);
        QFETCH(QString, range);
        Form form(ProjectionMethod::LambertTwoParallels, key);
        const QString shown = form.edit->text();
        form.type(good);
        QVERIFY(form.record() != form.before);
        QVERIFY(!form.edit->isMarked());
        form.edits.clear();

        QTest::keyClicks(form.edit, bad.left(1));
        QTest::keyClicks(form.edit, bad.mid(1));
        QCOMPARE(form.edit->text(), good + bad);
        QVERIFY(form.edit->isMarked());
        QVERIFY(form.message().contains(range));
        QCOMPARE(form.edit->toolTip(), form.message());
        QCOMPARE(form.edit->accessibleDescription(), form.message());
        QCOMPARE(form.record(), form.before);

        // Mended it counts again; refused at the end it goes when the user goes.
        for (int i = 0; i < bad.size(); ++i)
            QTest::keyClick(form.edit, Qt::Key_Backspace);
        QVERIFY(form.record() != form.before);
        QTest::keyClicks(form.edit, bad);
        form.edits.clear();
        QTest::keyClick(form.edit, Qt::Key_Tab);
        QCOMPARE(form.edit->text(), shown);
        QVERIFY(!form.edit->isMarked());
        QCOMPARE(form.record(), form.before);
        QCOMPARE(form.edits.count(), 0);
    }

    /// Each way from a typed text, good or refused, to the text that is shown then.
    void endsTyping_data() {
        enum Way { Escape, Enter, Click, Hide, OtherWindow, OtherRecord };
        const Rows<QString, int, QString, int> row({"typed", "way", "shown", "edits"});
        row("5x5, Escape", "5x5", Escape, "500000", 2);
        row("55, Escape", "55", Escape, "500000", 3);
        row("nothing, Escape", "", Escape, "500000", 0);
        row("55, Enter", " 55", Enter, "55", 2);
        row("5x5, Enter", "5x5", Enter, "5x5", 2);
        row("5x5, click", "5x5", Click, "500000", 2);
        row("1 000, click", "1 000", Click, "1000", 3);
        row("5x5, hide", "5x5", Hide, "500000", 2);
        row("5x5, another window", "5x5", OtherWindow, "5x5", 2);
        row("5x5, another record", "5x5", OtherRecord, "500000", 2);
    }

    void endsTyping() {
        QFETCH(QString, typed);
        QFETCH(int, way);
        QFETCH(QString, shown);
        QFETCH(int, edits);
        Form form(ProjectionMethod::TransverseMercatorScaled, Key::falseEast);
        form.type(typed);
        QWidget other;
        switch (way) {
        case 0:
            QTest::keyClick(form.edit, Qt::Key_Escape);
            QCOMPARE(form.record(), form.before);
            break;
        case 1:
            QTest::keyClick(form.edit, Qt::Key_Return);
            break;
        case 2:
            form.elsewhere.setFocus(Qt::MouseFocusReason);
            break;
        case 3:
            form.edit->hide();
            break;
        case 4:
            other.show();
            QApplication::setActiveWindow(&other);
            QVERIFY(!form.edit->hasFocus());
            break;
        default:
            form.editor.setRecord(*PanelRecords::imported(ProjectionMethod::TransverseMercatorScaled));
            form.row.showValue();
        }
        QCOMPARE(form.edit->text(), shown);
        QCOMPARE(form.edits.count(), edits);
        if (typed.contains('x'))
            QCOMPARE(form.record(), form.before);
    }

    void beginsTypingAnewAfterEnterAndFocus() {
        Form form(ProjectionMethod::TransverseMercatorScaled, Key::falseEast);
        form.type("55");
        QTest::keyClick(form.edit, Qt::Key_Return);
        form.type("7x");
        QCOMPARE(form.value(), "55");
        form.type("77");
        QTest::keyClick(form.edit, Qt::Key_Tab);
        form.edit->setFocus();
        form.type("9");
        QTest::keyClick(form.edit, Qt::Key_Escape);
        QCOMPARE(form.value(), "77");
    }

    void keepsAllDigitsOfWhatIsNotEdited() {
        Form form(ProjectionMethod::TransverseMercatorScaled, Key::orgLat);
        QCOMPARE(form.edit->text(), QString("49.833333333333"));
        QTest::keyClick(form.edit, Qt::Key_End);
        QTest::keyClicks(form.edit, "1");
        QTest::keyClick(form.edit, Qt::Key_Backspace);
        QTest::keyClick(form.edit, Qt::Key_Return);
        QCOMPARE(form.record(), form.before);

        form.type("45 30 15.5");
        QCOMPARE(form.message(), QString("= 45°30'15.5\""));
        QTest::keyClick(form.edit, Qt::Key_Tab);
        QCOMPARE(form.edit->text(), QString("45.504305555556"));
        QCOMPARE(form.value(), "45.504305555555554");
        AngleText::setNotation(AngleNotation::DegreesMinutesSeconds);
        form.row.showValue();
        QCOMPARE(form.edit->text(), QString("45°30'15.5\""));
    }

    void marksNothingWhileDisabled() {
        Form form(ProjectionMethod::TransverseMercatorScaled, Key::falseEast);
        const auto red = [&] {
            const QImage picture = form.window.grab().toImage();
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const QColor colour = picture.pixelColor(x, y);
                    if (colour.red() > colour.green() + 20)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(!red());
        form.type("5x5");
        QVERIFY(red());
        DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercatorScaled);
        record->setText(Key::falseEast, "5x5");
        form.editor.setRecord(*record);
        form.row.showValue();
        QVERIFY(red());
        form.window.setEnabled(false);
        QVERIFY(!red());
    }
};

ROOM_TEST(FieldRowTest)
#include "FieldRowTest.moc"
