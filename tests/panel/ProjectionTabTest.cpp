#include "panel/record/AngleText.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <cmath>

namespace Key = CoordParamKey;

class ProjectionTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsEveryField_data() {
        const Rows<ProjectionMethod, int> row({"method", "index"});
        for (const ProjectionFields& projection : ProjectionFields::all()) {
            for (size_t i = 0; i < projection.fields.size(); ++i)
                QTest::addRow("%d %s", int(projection.method), projection.fields[i].key) << projection.method << int(i);
        }
    }

    void editsEveryField() {
        QFETCH(ProjectionMethod, method);
        QFETCH(int, index);
        const ParamField& field = ProjectionFields::find(int(method))->fields[size_t(index)];
        const DictionaryGuard record = PanelRecords::imported(method);
        if (method == ProjectionMethod::Stereographic)
            dic_set_value(record.get(), Key::factor, "%f", 1.0);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record);
        QCOMPARE(screen.find<QComboBox>("Projection method")->currentData().toInt(), int(method));

        // The field stands where the table says, with its unit, and shows the record's number.
        const bool isScale = field.quantity == Quantity::ScaleFactor;
        QLineEdit* edit = screen.field(field.label);
        QVERIFY(edit);
        double number;
        if (field.quantity == Quantity::StandardParallel)
            QCOMPARE(edit->text(), QString("30"));
        else if (record->getNumber(field.key, &number))
            QVERIFY(qAbs(edit->text().toDouble() - number) <= 5e-13);

        const bool isParallel = field.quantity == Quantity::StandardParallel;
        const QString typed = isScale ? "0.99987" : field.quantity == Quantity::Length ? "-1234.5670" : "12.3450";
        screen.type(field.label, typed);
        // Every keystroke is in the record at once, but "0" and "0.", "-", and what leaves a computed radius as it is.
        QCOMPARE(screen.edits.count(), typed.size() - (isScale || isParallel ? 2 : typed.startsWith('-') ? 1 : 0));
        QStringList expected(field.key);
        if (method == ProjectionMethod::TransverseMercator && isScale)
            expected << Key::projectType;
        expected.sort();
        QCOMPARE(PanelRecords::changedKeys(before, screen.record()), expected);
        if (isParallel)
            QVERIFY(qAbs(screen.number(field.key) - 6378137.0 * std::cos(12.345 * 3.141592653589793 / 180)) < 1e-8);
        else
            QCOMPARE(QString(screen.value(field.key)), typed);

        // Read back from the record, in whichever notation.
        DictionaryGuard edited;
        dictionary_assign(edited.get(), &screen.record());
        AngleText::setNotation(AngleNotation::DegreesMinutesSeconds);
        screen.show(*edited, PanelOnScreen::Projection);
        QCOMPARE(screen.shown(field.label), field.isAngle() ? "12°20'42\"" : typed);
        QCOMPARE(recordText(screen.record()), recordText(*edited));
    }

    void nextPanelShowsAnglesAsChosen() {
        const PanelOnScreen screen("Projection: imported 0");
        screen.choose("Show angles in", int(AngleNotation::DegreesMinutesSeconds));
        const PanelOnScreen other(screen.record());
        QCOMPARE(other.shown("Latitude of origin"), QString("49°50'00\""));
        QCOMPARE(other.shown("Show angles in"), QString("Degrees, minutes, seconds"));
    }

    void goesThroughFieldsByTab() {
        PanelOnScreen screen(*PanelRecords::fresh());
        for (const ProjectionFields& projection : ProjectionFields::all()) {
            screen.show(*PanelRecords::imported(projection.method), PanelOnScreen::Projection);
            screen.find<QComboBox>("Projection method")->setFocus();
            for (const ParamField& field : projection.fields) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->accessibleName(), DlgCoordParam::tr(field.label));
            }
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("Show angles in"));
        }
    }
};

ROOM_TEST(ProjectionTabTest)
#include "ProjectionTabTest.moc"
