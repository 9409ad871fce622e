#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/field/SearchBox.h"
#include "panel/record/AngleText.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelOnScreen.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <cmath>

using namespace CoordParamKey;

Q_DECLARE_METATYPE(AngleRole)
Q_DECLARE_METATYPE(ProjectionMethod)

namespace {

constexpr double degree = 3.141592653589793 / 180;

AngleRole role(const QByteArray& name) {
    return name == "lat" ? AngleRole::Latitude : name == "lon" ? AngleRole::Longitude : AngleRole::Azimuth;
}

/// The keys whose text or number differs, or that only one record has.
QStringList changedKeys(const QStringList& before, const IDictionary& after) {
    QStringList keys;
    const QStringList now = recordText(after);
    for (const QStringList& side : {before, now}) {
        for (const QString& line : side) {
            const QString key = line.section('=', 0, 0);
            if ((!before.contains(line) || !now.contains(line)) && !keys.contains(key))
                keys << key;
        }
    }
    keys.sort();
    return keys;
}

/// What a system has that was just created in a group that holds others.
DictionaryGuard fresh() {
    DictionaryGuard record;
    record->setText(name, "New");
    record->setText(ellipsoidName, "GRS 1980");
    dic_set_value(record.get(), ellipsoidA, "%f", 6378137.0);
    dic_set_value(record.get(), ellipsoidF, "%f", 298.257222101);
    return record;
}

/// What an import writes.
DictionaryGuard imported(ProjectionMethod method) {
    DictionaryGuard record = fresh();
    dic_set_value(record.get(), projectType, "%d", int(method));
    dic_set_value(record.get(), shiftType, "%d", 2);
    dic_set_value(record.get(), factor, "%f", method == ProjectionMethod::TransverseMercator ? 1.0 : 0.9999);
    dic_set_value(record.get(), cuttingRadius, "%f", 6378137.0 * std::cos(30 * degree));
    const QByteArray numbers =
        "org_lon=9.1234567890123 org_lat=49.83333333333334 false_north=0 false_east=500000 parallel_1_lat=46.3 "
        "parallel_2_lat=50.1 p_r=53.31582047222222 lon1=8 lon2=10 lat1=46.3 lat2=50.1 _7dx=598.1 _7dy=73.7 _7dz=418.2 "
        "_7rx=5.6111111111111114e-05 _7ry=1.2499999999999999e-05 _7rz=-0.0006819444444444444 _7ppm=6.7";
    for (const QByteArray& item : numbers.split(' ')) {
        const int equals = item.indexOf('=');
        dic_set_value(record.get(), item.left(equals), "%f", item.mid(equals + 1).toDouble());
    }
    record->setText("a_key_of_another_version", " kept \"as\" it is ");
    return record;
}

void chooseMethod(const PanelOnScreen& screen, ProjectionMethod method) {
    const auto* box = screen.find<QComboBox>("Projection method");
    screen.choose("Projection method", box->findData(int(method)));
}

int shownMethod(const PanelOnScreen& screen) {
    return screen.find<QComboBox>("Projection method")->currentData().toInt();
}

} // namespace

/// Makes every text of the panel 40 % longer.
class LongTranslation : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override {
        if (QByteArray(context) != "DlgCoordParam")
            return QString();
        const QString source = QString::fromUtf8(sourceText);
        return source + ' ' + source.left(int(source.size() * 0.4));
    }
};

class PanelEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { AngleText::setNotation(AngleNotation::DecimalDegrees); }

    void readsAngles_data() {
        const Rows<AngleRole, double, QString> row({"role", "degrees", "stored"});
        for (const QByteArrayList& line : textTable("angles.txt"))
            row(QByteArray(line[0]).replace('~', ' '), role(line[1]), line[2].toDouble(), line[3]);
    }

    void readsAngles() {
        QFETCH(AngleRole, role);
        QFETCH(double, degrees);
        QFETCH(QString, stored);
        const AngleInput input = AngleText::parse(QTest::currentDataTag(), role);
        QVERIFY2(input.valid, qPrintable(input.reason));
        QVERIFY(qAbs(input.degrees - degrees) <= 1e-13);
        QCOMPARE(std::signbit(input.degrees), std::signbit(degrees));
        QCOMPARE(input.decimal, stored);
        QCOMPARE(input.decimal.toDouble(), input.degrees);
    }

    void refusesAngles_data() {
        const Rows<AngleRole> row({"role"});
        for (const char* typed :
             {"117,5",  "117 60 00",      "117 30 60", "117.5 30", "117 30.5 10", "-45S", "+45N", "N45S", "45 30 20 10",
              "45 -30", "4 5 .",          "1e2",       "nan",      "inf",         "0x10", "--45", "45°°", "45.5.5",
              "forty",  "45 30' 20\" \"", "١٢"})
            row(typed, AngleRole::Latitude);
        row("45E", AngleRole::Latitude);
        row("7N", AngleRole::Longitude);
        row("53N", AngleRole::Azimuth);
    }

    void refusesAngles() {
        QFETCH(AngleRole, role);
        const AngleInput input = AngleText::parse(QString::fromUtf8(QTest::currentDataTag()), role);
        QVERIFY(!input.valid);
        QVERIFY(!input.reason.isEmpty());
    }

    void formatsAngles_data() {
        const Rows<double, QString, QString> row({"degrees", "decimal", "expected"});
        row("half", 117.5, "117.5", "117°30'00\"");
        row("seconds", 117 + 1800.5 / 3600, "117.50013888888888", "117°30'00.5\"");
        row("third", 49.83333333333334, "49.83333333333334", "49°50'00\"");
        row("carries over", 8.9999999999999, "8.9999999999999", "9°00'00\"");
        row("keeps 1e-11", 9.00000000001, "9.00000000001", "9°00'00.00000004\"");
        row("negative below one", -2730.0 / 3600, "-0.7583333333333333", "-0°45'30\"");
        row("zero", 0.0, "0", "0°00'00\"");
    }

    void formatsAngles() {
        QFETCH(double, degrees);
        QFETCH(QString, decimal);
        QFETCH(QString, expected);
        QCOMPARE(AngleText::format(degrees, AngleNotation::DecimalDegrees), decimal);
        const QString sexagesimal = AngleText::format(degrees, AngleNotation::DegreesMinutesSeconds);
        QCOMPARE(sexagesimal, expected);
        QVERIFY(qAbs(AngleText::parse(sexagesimal, AngleRole::Longitude).degrees - degrees) < 2e-12);
    }

    void readsNumbers_data() {
        // stored: empty: refused
        const Rows<QString> row({"stored"});
        row(" 500000.50 ", "500000.50");
        row("+1", "1");
        row("−0.1", "-0.1");
        row("1e6", "1e6");
        for (const char* typed : {"", "-", ".", "500,5", "1,000,000", "500 000", "0x10", "nan", "inf", "1e999", "1e",
                                  "500000m", "1.2.3", "٥"})
            row(*typed ? typed : "nothing", "");
    }

    void readsNumbers() {
        QFETCH(QString, stored);
        const QString typed = QString::fromUtf8(QTest::currentDataTag());
        double number = 0;
        QString plain;
        QCOMPARE(NumberText::parse(typed == "nothing" ? QString() : typed, &number, &plain), !stored.isEmpty());
        QCOMPARE(plain, stored);
        QCOMPARE(number, stored.toDouble());
    }

    void givesBackUneditedRecord_data() {
        // method: -1: a fresh one, -2: odd texts, -3: nothing
        const Rows<int> row({"method"});
        for (const ProjectionFields& projection : ProjectionFields::all())
            row(projection.name, int(projection.method));
        row("fresh", -1);
        row("odd texts", -2);
        row("empty", -3);
    }

    void givesBackUneditedRecord() {
        QFETCH(int, method);
        const DictionaryGuard record = method >= 0    ? imported(ProjectionMethod(method))
                                       : method == -1 ? fresh()
                                       : method == -2 ? imported(ProjectionMethod::LambertTwoParallels)
                                                      : DictionaryGuard();
        if (method == -2) {
            for (const char* key : {ellipsoidA, orgLat, factor, parallel1Lat, shiftRx, cuttingRadius, geoidName})
                record->setText(key, "1,5 \xe2\x82\xac %s");
            record->setText(orgLon, "  +0009.50 ");
            record->setText(projectType, "9 ");
            record->setText(shiftType, "7");
            record->setText(parallel2Lat, "");
        }
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        for (int tab = 0; tab < 4; ++tab) {
            screen.panel.setCurrentIndex(tab);
            for (const AngleNotation notation : {AngleNotation::DegreesMinutesSeconds, AngleNotation::DecimalDegrees}) {
                if (tab == PanelOnScreen::Projection)
                    screen.choose(DlgCoordParam::tr("Show angles in"), int(notation));
                for (QLineEdit* edit : screen.panel.findChildren<QLineEdit*>()) {
                    edit->setFocus();
                    QTest::keyClick(edit, Qt::Key_End);
                    QTest::keyClick(edit, Qt::Key_Escape);
                    QTest::keyClick(edit, Qt::Key_Return);
                }
            }
            QCOMPARE(recordText(screen.record()), before);
        }
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(recordText(screen.record()), before);
        QCOMPARE(screen.edits.count(), 0);
    }

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
        const ProjectionFields* fields = ProjectionFields::find(int(method));
        const ParamField& field = fields->fields[size_t(index)];
        const DictionaryGuard record = imported(method);
        if (method == ProjectionMethod::Stereographic)
            dic_set_value(record.get(), factor, "%f", 1.0);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record);
        QCOMPARE(shownMethod(screen), int(method));

        // The field stands where the table says, with its unit, and shows the record's number with all its digits.
        const bool isScale = field.quantity == Quantity::ScaleFactor;
        QLineEdit* edit = screen.field(field.label);
        QVERIFY(edit);
        double number;
        if (field.quantity == Quantity::StandardParallel)
            QCOMPARE(edit->text(), QString("30"));
        else if (record->getNumber(field.key, &number))
            QCOMPARE(edit->text().toDouble(), number);

        const bool isParallel = field.quantity == Quantity::StandardParallel;
        const QString typed = isScale ? "0.99987" : field.quantity == Quantity::Length ? "-1234.5670" : "12.3450";
        screen.type(field.label, typed);
        // Every keystroke is in the record at once, but "0" and "0.", "-", and what leaves a computed radius as it is.
        QCOMPARE(screen.edits.count(), typed.size() - (isScale || isParallel ? 2 : typed.startsWith('-') ? 1 : 0));
        QStringList expected(field.key);
        if (method == ProjectionMethod::TransverseMercator && isScale)
            expected << projectType;
        expected.sort();
        QCOMPARE(changedKeys(before, screen.record()), expected);
        if (isParallel)
            QCOMPARE(screen.number(field.key), 6378137.0 * std::cos(12.345 * degree));
        else
            QCOMPARE(QString(screen.value(field.key)), typed);

        // Read back from the record, in whichever notation.
        DictionaryGuard edited;
        dictionary_assign(edited.get(), &screen.record());
        AngleText::setNotation(AngleNotation::DegreesMinutesSeconds);
        screen.show(*edited, PanelOnScreen::Projection);
        edit = screen.field(field.label);
        QCOMPARE(edit->text(), field.isAngle() ? "12°20'42\"" : typed);
        QCOMPARE(recordText(screen.record()), recordText(*edited));
    }

    void definesFreshSystem_data() {
        const Rows<ProjectionMethod> row({"method"});
        for (const ProjectionFields& projection : ProjectionFields::all())
            row(projection.name, projection.method);
    }

    void definesFreshSystem() {
        QFETCH(ProjectionMethod, method);
        PanelOnScreen screen(*fresh());
        // As created, as the import writes a definition that fits no method, and without even an ellipsoid.
        for (int state = 0; state < 3; ++state) {
            const DictionaryGuard record = state < 2 ? fresh() : DictionaryGuard();
            if (state == 1) {
                for (const char* key : {orgLon, orgLat, falseNorth, falseEast, factor, cuttingRadius, parallel1Lat,
                                        parallel2Lat, azimuth, lon1, lon2, lat1, lat2})
                    dic_set_value(record.get(), key, "%f", 0.0);
                dic_set_value(record.get(), projectType, "%d", 0);
            }
            screen.show(*record, PanelOnScreen::Projection);
            QVERIFY(!coordParamDefinesProjection(screen.record()));
            QCOMPARE(screen.messages().size(), 1);
            QVERIFY(!screen.field("False easting"));
            chooseMethod(screen, method);
            QCOMPARE(screen.edits.count(), 1);
            if (state == 2) {
                screen.panel.setCurrentIndex(PanelOnScreen::Ellipsoid);
                Q_EMIT screen.find<SearchBox>("Ellipsoid")->chosen("Bessel 1841");
            }
            QVERIFY(coordParamDefinesProjection(screen.record()));
            QCOMPARE(ProjectionAdvice::problem(screen.record()), QString());
            QCOMPARE(screen.number(projectType), double(method));
            const ParamField* scale = ProjectionFields::find(int(method))->field(factor);
            if (scale && !scale->optional)
                QCOMPARE(screen.number(factor), method == ProjectionMethod::TransverseMercatorScaled ? 0.9996 : 1.0);
        }
    }

    void definesByItsFields_data() { definesFreshSystem_data(); }

    /// The keys that the method's fields write are those that make its definition, and no others.
    void definesByItsFields() {
        QFETCH(ProjectionMethod, method);
        const DictionaryGuard record = imported(method);
        if (method == ProjectionMethod::Stereographic) {
            record->setText(orgLat, "90");
            record->setText(factor, "1");
        }
        const QByteArray before = coordParamToProjDefine(*record);
        QVERIFY(!before.isEmpty());
        for (const char* key : {orgLon, orgLat, falseNorth, falseEast, factor, cuttingRadius, parallel1Lat,
                                parallel2Lat, azimuth, lon1, lat1, lon2, lat2}) {
            DictionaryGuard other;
            dictionary_assign(other.get(), record.get());
            dic_set_value(other.get(), key, "%f", dictionary_number(*record, key, 0) * 0.99 + 0.001);
            QVERIFY2((coordParamToProjDefine(*other) != before) ==
                         (ProjectionFields::ofRecord(*record)->field(key) != nullptr),
                     key);
        }
    }

    void keepsValuesOfOtherMethods() {
        const DictionaryGuard record = imported(ProjectionMethod::MercatorStandardParallel);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record);
        for (const ProjectionFields& projection : ProjectionFields::all())
            chooseMethod(screen, projection.method);
        chooseMethod(screen, ProjectionMethod::Mercator);
        QCOMPARE(screen.number(cuttingRadius), 6378137.0);
        chooseMethod(screen, ProjectionMethod::TransverseMercator);
        QCOMPARE(screen.value(factor), "1.000000");
        chooseMethod(screen, ProjectionMethod::TransverseMercatorScaled);
        QCOMPARE(screen.shown("Scale factor"), QString("0.9999"));
        chooseMethod(screen, ProjectionMethod::MercatorStandardParallel);
        QCOMPARE(recordText(screen.record()), before);

        // What was typed under another kind stays typed.
        chooseMethod(screen, ProjectionMethod::TransverseMercator);
        screen.type("Scale factor", "0.9997");
        chooseMethod(screen, ProjectionMethod::Mercator);
        QCOMPARE(screen.shown("Scale factor"), QString("0.9997"));
    }

    void followsScaleFactor() {
        PanelOnScreen screen(*imported(ProjectionMethod::TransverseMercator));
        const QList<QPair<QString, int>> steps = {{"0.9996", 1}, {"1", 0}, {"1.0000", 0}, {"1.00002", 1}, {"x", 1}};
        for (const auto& step : steps) {
            screen.type("Scale factor", step.first);
            QCOMPARE(screen.value(projectType), QByteArray::number(step.second).constData());
            QCOMPARE(shownMethod(screen), step.second);
            QVERIFY(coordParamDefinesProjection(screen.record()));
        }
        QCOMPARE(screen.value(factor), "1.00002");
    }

    void keepsStandardParallel_data() {
        const Rows<ProjectionMethod, double, double> row({"method", "latitude", "parallel"});
        row("Mercator", ProjectionMethod::MercatorStandardParallel, 0.0, 41.0);
        row("Mercator, all digits", ProjectionMethod::MercatorStandardParallel, 0.0, 20.123456789012);
        row("Mercator, near the equator", ProjectionMethod::MercatorStandardParallel, 0.0, 0.5);
        row("North pole", ProjectionMethod::Stereographic, 90.0, 71.0);
        row("South pole", ProjectionMethod::Stereographic, -90.0, -71.0);
        row("plain Mercator", ProjectionMethod::Mercator, 0.0, 0.0);
    }

    void keepsStandardParallel() {
        QFETCH(ProjectionMethod, method);
        QFETCH(double, latitude);
        QFETCH(double, parallel);
        PanelOnScreen screen(*fresh());
        chooseMethod(screen, method);
        if (method == ProjectionMethod::Stereographic) {
            QCOMPARE(screen.shown("Standard parallel"), QString());
            screen.type("Latitude of origin", QString::number(latitude));
        }
        if (method != ProjectionMethod::Mercator)
            screen.type("Standard parallel", QString::number(parallel, 'g', 15));
        const double cosine = std::cos(parallel * degree);
        QVERIFY(qAbs(screen.number(cuttingRadius) - 6378137.0 * cosine) < 1e-8);

        // Another axis, typed or chosen, leaves the parallel where it is.
        QStringList before = recordText(screen.record());
        screen.panel.setCurrentIndex(PanelOnScreen::Ellipsoid);
        screen.type("Semi-major axis a", "6377397.155");
        QCOMPARE(changedKeys(before, screen.record()), QStringList({cuttingRadius, ellipsoidA}));
        QVERIFY(qAbs(screen.number(cuttingRadius) - 6377397.155 * cosine) < 1e-8);
        Q_EMIT screen.find<SearchBox>("Ellipsoid")->chosen("WGS 84");
        QVERIFY(qAbs(screen.number(cuttingRadius) - 6378137.0 * cosine) < 1e-8);
        screen.panel.setCurrentIndex(PanelOnScreen::Projection);
        if (method != ProjectionMethod::Mercator)
            QCOMPARE(screen.shown("Standard parallel"), QString::number(parallel, 'g', 15));
        QVERIFY(coordParamDefinesProjection(screen.record()));

        if (method == ProjectionMethod::Stereographic) {
            screen.type("Standard parallel", "");
            QCOMPARE(screen.number(cuttingRadius), 0.0);
        }
    }

    void keepsLastGoodValue_data() {
        const Rows<int, QByteArray, QString, QString, QString> row({"tab", "label", "good", "bad", "range"});
        for (const QByteArrayList& line : textTable("refused_values.txt"))
            row(line.mid(1, 3).join(' '), line[0].toInt(), line[1], line[2], QByteArray(line[3]).replace('~', ' '),
                line[4]);
    }

    void keepsLastGoodValue() {
        QFETCH(int, tab);
        QFETCH(QByteArray, label);
        QFETCH(QString, good);
        QFETCH(QString, bad);
        QFETCH(QString, range);
        const DictionaryGuard record = imported(ProjectionMethod::LambertTwoParallels);
        PanelOnScreen screen(*record, PanelOnScreen::Tab(tab));
        QLineEdit* edit = screen.type(label, good);
        QCOMPARE(screen.messages().filter(range), QStringList());
        const QStringList before = recordText(screen.record());
        screen.edits.clear();

        QTest::keyClicks(edit, bad);
        QCOMPARE(edit->text(), good + bad);
        const QStringList messages = screen.messages().filter(range);
        QCOMPARE(messages.size(), 1);
        QCOMPARE(edit->toolTip(), messages.first());
        QCOMPARE(edit->accessibleDescription(), messages.first());
        QCOMPARE(recordText(screen.record()), before);
        QCOMPARE(screen.edits.count(), 0);

        QTest::keyClick(edit, Qt::Key_Tab);
        QCOMPARE(edit->text(), good + bad);
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(screen.panel.isVisible());
        QCOMPARE(screen.messages().filter(range), QStringList());
        QCOMPARE(recordText(screen.record()), before);

        // Another system: nothing of the refused text goes along.
        QTest::keyClicks(edit, "x");
        screen.show(*record, tab);
        QCOMPARE(recordText(screen.record()), recordText(*record));
        QCOMPARE(screen.messages().filter(range), QStringList());
    }

    void saysWhatIsWrong_data() {
        const Rows<ProjectionMethod, QByteArrayList, QString> row({"method", "values", "message"});
        for (const QByteArrayList& line : textTable("problems.txt"))
            row(line[0], ProjectionMethod(line[1].toInt()), line[2].split(' '), line[3]);
    }

    void saysWhatIsWrong() {
        QFETCH(ProjectionMethod, method);
        QFETCH(QByteArrayList, values);
        QFETCH(QString, message);
        const DictionaryGuard record = imported(method);
        if (method == ProjectionMethod::LambertOneParallel)
            record->setText(orgLat, "46.3");
        for (const QByteArray& item : values) {
            const QByteArray key = item.split('=').first();
            if (key == item)
                record->remove(key);
            else
                record->setText(key, item.mid(key.size() + 1).replace('~', ' '));
        }
        PanelOnScreen screen(*record);
        const QString said = screen.messages().join('\n');
        QVERIFY2(message.isEmpty() ? said.isEmpty() : said.contains(message), qPrintable(said));
        // The one predicate decides; the panel adds only what no formula can compute.
        if (!coordParamDefinesProjection(*record))
            QVERIFY(screen.messages().first().startsWith("No projection"));
    }

    void showsAnglesAsChosen() {
        const DictionaryGuard record = imported(ProjectionMethod::TransverseMercator);
        PanelOnScreen screen(*record);
        QLineEdit* meridian = screen.type("Central meridian", "117 30 00.5");
        QVERIFY(screen.messages().contains("= 117°30'00.5\""));
        QTest::keyClick(meridian, Qt::Key_Tab);
        QCOMPARE(meridian->text(), QString("117.50013888888888"));
        QCOMPARE(screen.value(orgLon), "117.50013888888888");
        QLineEdit* latitude = screen.type("Latitude of origin", "91");

        screen.edits.clear();
        screen.choose("Show angles in", int(AngleNotation::DegreesMinutesSeconds));
        QCOMPARE(meridian->text(), QString("117°30'00.5\""));
        QCOMPARE(latitude->text(), QString("91")); // what was refused stays to be mended
        QCOMPARE(screen.edits.count(), 0);

        // Typed in decimal it is stored as typed and then shown as chosen, in the next panel too.
        screen.type("Central meridian", "117.50");
        QTest::keyClick(meridian, Qt::Key_Return);
        QCOMPARE(meridian->text(), QString("117°30'00\""));
        QCOMPARE(screen.value(orgLon), "117.50");
        const PanelOnScreen other(*record);
        QCOMPARE(other.shown("Latitude of origin"), QString("49°50'00\""));
    }

    void showsAllDigits() {
        const DictionaryGuard record = imported(ProjectionMethod::TransverseMercator);
        dic_set_value(record.get(), ellipsoidF, "%f", 298.257223563);
        record->setText(falseNorth, "12.500000");
        record->setText(falseEast, "500000.50");
        PanelOnScreen screen(*record);
        QCOMPARE(screen.shown("Central meridian"), QString("9.1234567890123"));
        QCOMPARE(screen.shown("False northing"), QString("12.5"));
        QCOMPARE(screen.shown("False easting"), QString("500000.50"));
        screen.panel.setCurrentIndex(PanelOnScreen::Ellipsoid);
        QCOMPARE(screen.shown("Inverse flattening 1/f"), QString("298.257223563"));
        QCOMPARE(screen.shown("Semi-minor axis b"), QString("6356752.314245"));
        QCOMPARE(screen.shown("Eccentricity e"), QString("0.081819190843"));
        screen.panel.setCurrentIndex(PanelOnScreen::Shift);
        QCOMPARE(screen.shown("Rotation Z"), QString("-2.455"));
    }

    void choosesEllipsoid() {
        const DictionaryGuard record = imported(ProjectionMethod::TransverseMercator);
        record->setText(ellipsoidName, "Ours");
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        auto* box = screen.find<SearchBox>("Ellipsoid");
        QCOMPARE(box->currentText(), QString("Ours"));
        QVERIFY(screen.messages().contains("Not in the list of ellipsoids."));

        // The catalogue's record is taken over, digits and all.
        IDictionary* added = screen.catalogue.addTestEllipsoid("New", "", "", "0");
        dic_set_value(added, ellipsoidA, "%f", 6377483.865280419);
        dic_set_value(added, ellipsoidF, "%f", 299.1528128);
        const QStringList before = recordText(screen.record());
        box->showPopup();
        box->hidePopup();
        QVERIFY(box->findText("New") >= 0);
        screen.choose("Ellipsoid", box->findText("New"));
        QCOMPARE(changedKeys(before, screen.record()), QStringList({ellipsoidA, ellipsoidF, ellipsoidName}));
        QCOMPARE(screen.value(ellipsoidName), "New");
        QCOMPARE(screen.number(ellipsoidA), 6377483.865280419);
        QCOMPARE(screen.shown("Semi-major axis a"), QString("6377483.865280419"));
        QCOMPARE(screen.messages(), QStringList());
        QCOMPARE(screen.edits.count(), 1);

        screen.type("Semi-major axis a", "6377483");
        QVERIFY(screen.messages().join(' ').contains("differ"));
        screen.catalogue.deleteEllipsoid("New");
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(box->currentText(), QString("New"));
        QCOMPARE(box->findText("New"), -1);
    }

    void searchesEllipsoid() {
        PanelOnScreen screen(*imported(ProjectionMethod::TransverseMercator), PanelOnScreen::Ellipsoid);
        auto* box = screen.find<SearchBox>("Ellipsoid");
        const auto found = [box] { return box->completer()->completionModel()->rowCount(); };
        const auto search = [box](const QString& typed) {
            box->setFocus();
            box->lineEdit()->selectAll();
            QTest::keyClicks(box, typed);
        };
        search("bess");
        QCOMPARE(found(), 2);
        QVERIFY(box->completer()->popup()->isVisible());
        QCOMPARE(screen.edits.count(), 0);
        QTest::keyClick(box->completer()->popup(), Qt::Key_Escape);
        QCOMPARE(box->currentText(), QString("GRS 1980"));
        QVERIFY(!box->completer()->popup()->isVisible());
        QVERIFY(screen.panel.isVisible());

        search("1841 BESS");
        QCOMPARE(found(), 1);
        QTest::keyClick(box->completer()->popup(), Qt::Key_Return);
        QCOMPARE(screen.value(ellipsoidName), "Bessel 1841");
        QCOMPARE(screen.value(ellipsoidA), "6377397.155");
        QCOMPARE(screen.edits.count(), 1);

        search("wgs");
        QTest::keyClick(box->completer()->popup(), Qt::Key_Down);
        QTest::keyClick(box->completer()->popup(), Qt::Key_Return);
        QCOMPARE(screen.value(ellipsoidName), "WGS 84");
        QCOMPARE(screen.edits.count(), 2);

        // What is no name of the list gives way when the user leaves; arrow keys open the list and choose nothing.
        search("no such");
        QTest::keyClick(box, Qt::Key_Tab);
        QCOMPARE(box->currentText(), QString("WGS 84"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        box->hidePopup();
        QCOMPARE(screen.edits.count(), 2);
    }

    void editsShift() {
        const DictionaryGuard record = fresh();
        dic_set_value(record.get(), shiftType, "%d", 0);
        PanelOnScreen screen(*record, PanelOnScreen::Shift);
        QVERIFY(!screen.field("Rotation X"));
        screen.choose("Shift to WGS 84", 1);
        QCOMPARE(screen.value(shiftType), "2");
        QCOMPARE(screen.number(shiftPpm), 0.0);

        screen.type("Translation X", "-87");
        screen.type("Rotation X", "-0.1502");
        screen.type("Rotation Z", "0.50");
        QCOMPARE(screen.value(shiftDx), "-87");
        QCOMPARE(screen.number(shiftRx), -0.1502 / 3600);
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(screen.shown("Rotation X"), QString("-0.1502"));

        const QStringList before = recordText(screen.record());
        auto* reverse = screen.panel.findChildren<QPushButton*>().first();
        QTest::mouseClick(reverse, Qt::LeftButton);
        QCOMPARE(screen.shown("Rotation X"), QString("0.1502"));
        QCOMPARE(screen.shown("Rotation Y"), QString("0"));
        QCOMPARE(screen.shown("Rotation Z"), QString("-0.5"));
        QCOMPARE(changedKeys(before, screen.record()), QStringList({shiftRx, shiftRz}));
        QVERIFY(screen.messages().join(' ').contains("reversed"));
        QTest::mouseClick(reverse, Qt::LeftButton);
        QCOMPARE(recordText(screen.record()), before);

        screen.choose("Shift to WGS 84", 0);
        QCOMPARE(screen.value(shiftType), "0");
        screen.choose("Shift to WGS 84", 1);
        QCOMPARE(recordText(screen.record()), before);
    }

    void choosesGeoid() {
        const DictionaryGuard record = imported(ProjectionMethod::TransverseMercator);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record, PanelOnScreen::Height);
        auto* box = screen.find<SearchBox>("Geoid model");
        QCOMPARE(box->currentText(), QString("(none)"));
        screen.catalogue.addTestGeoid("Ours", "ours.ggf", "GRS 1980", "0");
        box->showPopup();
        box->hidePopup();
        screen.choose("Geoid model", box->findText("Ours"));
        QCOMPARE(changedKeys(before, screen.record()), QStringList(geoidName));
        QCOMPARE(screen.value(geoidName), "Ours");
        QCOMPARE(screen.messages(), QStringList());
        screen.choose("Geoid model", box->findText("EGM2008"));
        QVERIFY(screen.messages().join(' ').contains("another ellipsoid"));
        screen.catalogue.deleteGeoid("EGM2008");
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(box->currentText(), QString("EGM2008"));
        QVERIFY(screen.messages().join(' ').contains("Not in the list"));
        screen.choose("Geoid model", 0);
        QCOMPARE(recordText(screen.record()), before);
    }

    void takesOverValues() {
        CoordParamEditor editor;
        editor.setRecord(*imported(ProjectionMethod::TransverseMercator));
        const DictionaryGuard values;

        // A better scale factor makes the other method of it.
        dic_set_value(values.get(), factor, "%f", 0.99987654321);
        QStringList before = recordText(editor.record());
        editor.replaceValues(*values);
        QCOMPARE(changedKeys(before, editor.record()), QStringList({factor, projectType}));
        QCOMPARE(dictionary_number(editor.record(), factor, 0), 0.99987654321);

        // A whole definition: the name and foreign keys stay, the shift that it lacks goes.
        dictionary_assign(values.get(), imported(ProjectionMethod::LambertTwoParallels).get());
        for (const ParamField& field : DatumFields::shift())
            values->remove(field.key);
        dic_set_value(values.get(), shiftType, "%d", 0);
        values->remove(name);
        values->remove("a_key_of_another_version");
        editor.replaceValues(*values);
        QCOMPARE(editor.record().getValue(name), "New");
        QVERIFY(editor.record().getValue("a_key_of_another_version"));
        QVERIFY(!editor.record().getValue(shiftDx));
        QCOMPARE(editor.record().getValue(projectType), "9");
    }

    void refusesEditsWhenReadOnly() {
        const DictionaryGuard record = imported(ProjectionMethod::TransverseMercator);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid, true);
        for (int tab = 0; tab < 4; ++tab) {
            screen.show(*record, tab);
            for (QLineEdit* edit : screen.findAll<QLineEdit>())
                QTest::keyClicks(edit, "1");
            for (QComboBox* box : screen.findAll<QComboBox>()) {
                if (box->accessibleName() != "Show angles in")
                    QTest::keyClick(box, Qt::Key_Down);
            }
            for (QPushButton* button : screen.findAll<QPushButton>())
                QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(recordText(screen.record()), recordText(*record));
            QCOMPARE(screen.edits.count(), 0);
        }
    }

    void goesThroughFieldsByTab() {
        PanelOnScreen screen(*fresh());
        for (const ProjectionFields& projection : ProjectionFields::all()) {
            screen.show(*imported(projection.method), PanelOnScreen::Projection);
            screen.find<QComboBox>("Projection method")->setFocus();
            for (const ParamField& field : projection.fields) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->accessibleName(), DlgCoordParam::tr(field.label));
            }
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("Show angles in"));
        }
    }

    void fitsItsWindow_data() {
        const Rows<bool> row({"longTexts"});
        row("English", false);
        row("40 % longer", true);
    }

    void fitsItsWindow() {
        QFETCH(bool, longTexts);
        LongTranslation translation;
        if (longTexts)
            QVERIFY(QCoreApplication::installTranslator(&translation));
        // The usual size on a desktop; the offscreen platform takes a larger one.
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPixelSize(13);
        QApplication::setFont(font);
        PanelOnScreen screen(*fresh());
        screen.panel.resize(500, 530);
        const auto needsNoScrolling = [&screen] {
            QApplication::processEvents();
            const auto* area = screen.panel.currentWidget()->findChild<QScrollArea*>();
            return area->horizontalScrollBar()->maximum() == 0 && area->verticalScrollBar()->maximum() == 0;
        };
        for (const ProjectionFields& projection : ProjectionFields::all()) {
            for (int tab = 0; tab < 4; ++tab) {
                screen.show(*imported(projection.method), tab);
                QVERIFY2(needsNoScrolling(), qPrintable(QString("%1, tab %2").arg(projection.name).arg(tab)));
            }
        }
        QApplication::setFont(usual);
    }
};

ROOM_TEST(PanelEditingTest)
#include "PanelEditingTest.moc"
