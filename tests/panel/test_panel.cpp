#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/AngleText.h"
#include "panel/CoordParamEditor.h"
#include "panel/DatumFields.h"
#include "panel/DlgCoordParam.h"
#include "panel/MessageLine.h"
#include "panel/NumberText.h"
#include "panel/ProjectionAdvice.h"
#include "panel/ProjectionFields.h"
#include "panel/SearchBox.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTranslator>

#include <cmath>
#include <memory>

using namespace CoordParamKey;

Q_DECLARE_METATYPE(AngleRole)
Q_DECLARE_METATYPE(ProjectionKind)

namespace {

constexpr double degree = 3.141592653589793 / 180;

/// Every key in order with its text and, in brackets, the number behind it.
QStringList dump(const IDictionary& record) {
    QStringList lines;
    for (int i = 0; i < record.count(); ++i) {
        const char* key = record.getKey(i);
        QString line = QString("%1=%2").arg(key, QString::fromLocal8Bit(record.getValue(key)));
        double number;
        if (record.getNumber(key, &number))
            line += '[' + QString::number(number, 'g', 17) + ']';
        lines << line;
    }
    return lines;
}

/// The keys whose text or number differs, or that only one record has.
QStringList changedKeys(const QStringList& before, const IDictionary& after) {
    QStringList keys;
    const QStringList now = dump(after);
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
void fillFresh(IDictionary* record) {
    record->setText(name, "New");
    record->setText(ellipsoidName, "GRS 1980");
    dic_set_value(record, ellipsoidA, "%f", 6378137.0);
    dic_set_value(record, ellipsoidF, "%f", 298.257222101);
}

/// What an import writes.
void fillImported(IDictionary* record, ProjectionKind kind) {
    fillFresh(record);
    dic_set_value(record, projectType, "%d", int(kind));
    dic_set_value(record, orgLon, "%f", 9.1234567890123);
    dic_set_value(record, orgLat, "%f", 49.83333333333334);
    dic_set_value(record, falseNorth, "%f", 0.0);
    dic_set_value(record, falseEast, "%f", 500000.0);
    dic_set_value(record, factor, "%f", kind == ProjectionKind::TransverseMercator ? 1.0 : 0.9999);
    dic_set_value(record, cuttingRadius, "%f", 6378137.0 * std::cos(30 * degree));
    dic_set_value(record, parallel1Lat, "%f", 46.3);
    dic_set_value(record, parallel2Lat, "%f", 50.1);
    dic_set_value(record, azimuth, "%f", 53.31582047222222);
    dic_set_value(record, lon1, "%f", 8.0);
    dic_set_value(record, lon2, "%f", 10.0);
    dic_set_value(record, lat1, "%f", 46.3);
    dic_set_value(record, lat2, "%f", 50.1);
    dic_set_value(record, shiftType, "%d", 2);
    dic_set_value(record, shiftDx, "%f", 598.1);
    dic_set_value(record, shiftDy, "%f", 73.7);
    dic_set_value(record, shiftDz, "%f", 418.2);
    dic_set_value(record, shiftRx, "%f", 0.202 / 3600);
    dic_set_value(record, shiftRy, "%f", 0.045 / 3600);
    dic_set_value(record, shiftRz, "%f", -2.455 / 3600);
    dic_set_value(record, shiftPpm, "%f", 6.7);
    record->setText("a_key_of_another_version", " kept \"as\" it is ");
}

QByteArray text(const IDictionary& record, const char* key) {
    return record.getValue(key);
}

/// The panel on a catalogue with a few ellipsoids and geoids, shown, and a hand that types.
class PanelOnScreen {
public:
    explicit PanelOnScreen(bool readOnly = false) {
        catalogue.addTestEllipsoid("WGS 84", "6378137", "298.257223563", "1");
        catalogue.addTestEllipsoid("GRS 1980", "6378137", "298.257222101", "1");
        catalogue.addTestEllipsoid("Bessel 1841", "6377397.155", "299.1528128", "1");
        catalogue.addTestEllipsoid("Bessel Namibia", "6377483.865280419", "299.1528128", "1");
        catalogue.addTestGeoid("EGM2008", "egm2008.ggf", "WGS 84", "1");
        panel = std::make_unique<DlgCoordParam>(&catalogue, nullptr, readOnly);
        panel->resize(500, 530);
        panel->show();
        QApplication::setActiveWindow(panel.get());
        edits = std::make_unique<QSignalSpy>(panel.get(), SIGNAL(dataChanged()));
    }

    void show(const IDictionary& record, int tab) {
        panel->setCurrentIndex(tab);
        panel->setCoordParam(record);
        edits->clear();
    }

    const IDictionary& record() const { return panel->getMetaData(); }

    template <typename Widget> Widget* visible(const QString& accessibleName) const {
        const auto widgets = panel->findChildren<Widget*>();
        for (Widget* widget : widgets) {
            if (widget->isVisible() && widget->accessibleName() == accessibleName)
                return widget;
        }
        return nullptr;
    }

    QLineEdit* field(const char* label) const { return visible<QLineEdit>(DlgCoordParam::tr(label)); }

    /// Replaces the field's text by typing.
    QLineEdit* type(const char* label, const QString& typed) const {
        QLineEdit* edit = field(label);
        if (!edit)
            return nullptr;
        edit->setFocus();
        edit->selectAll();
        if (typed.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, typed);
        return edit;
    }

    void choose(const QString& box, int index) const {
        auto* combo = visible<QComboBox>(box);
        QVERIFY(combo);
        combo->setCurrentIndex(index);
        Q_EMIT combo->activated(index);
    }

    void chooseKind(ProjectionKind kind) const {
        auto* combo = visible<QComboBox>("Kind of projection");
        QVERIFY(combo);
        choose("Kind of projection", combo->findData(int(kind)));
    }

    int shownKind() const { return visible<QComboBox>("Kind of projection")->currentData().toInt(); }

    /// Every message on the visible tab, the problem first.
    QStringList messages() const {
        QStringList texts;
        const auto lines = panel->findChildren<MessageLine*>();
        for (const MessageLine* line : lines) {
            if (line->isVisible() && !line->text().isEmpty())
                texts << line->text();
        }
        return texts;
    }

    enum Tab { Ellipsoid, Projection, Shift, Height };

    RecordingCatalogue catalogue;
    std::unique_ptr<DlgCoordParam> panel;
    std::unique_ptr<QSignalSpy> edits;
};

} // namespace

class TestPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { AngleText::setNotation(AngleNotation::DecimalDegrees); }

    void readsAngles_data();
    void readsAngles();
    void refusesAngles_data();
    void refusesAngles();
    void formatsAngles_data();
    void formatsAngles();
    void readsNumbers_data();
    void readsNumbers();

    void givesBackUneditedRecord_data();
    void givesBackUneditedRecord();
    void editsEveryField_data();
    void editsEveryField();
    void definesFreshSystem_data();
    void definesFreshSystem();
    void definesByItsFields_data();
    void definesByItsFields();
    void keepsValuesOfOtherKinds();
    void followsScaleFactor();
    void keepsTrueScaleParallel_data();
    void keepsTrueScaleParallel();
    void keepsLastGoodValue_data();
    void keepsLastGoodValue();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void showsAnglesAsChosen();
    void showsAllDigits();

    void choosesEllipsoid();
    void searchesEllipsoid();
    void editsShift();
    void choosesGeoid();
    void takesOverValues();
    void refusesEditsWhenReadOnly();
    void goesThroughFieldsByTab();
    void fitsItsWindow_data();
    void fitsItsWindow();
};

void TestPanel::readsAngles_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<AngleRole>("role");
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char* typed, AngleRole role, double degrees, const char* stored) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << role << degrees << QString(stored);
    };
    const AngleRole lat = AngleRole::Latitude, lon = AngleRole::Longitude, az = AngleRole::Azimuth;
    row("117.5", lon, 117.5, "117.5");
    row(" 117.500 ", lon, 117.5, "117.500");
    row("+9", lon, 9, "9");
    row("-.5", lat, -0.5, "-.5");
    row("49.12345678901234567", lat, 49.12345678901234567, "49.12345678901234567");
    row("117.5°", lon, 117.5, "117.5");
    row("117.5E", lon, 117.5, "117.5");
    row("45.5S", lat, -45.5, "-45.5");
    row("45.5 s", lat, -45.5, "-45.5");
    row("W71", lon, -71, "-71");
    row("117 30 00.5", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117°30'0.5\"E", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117° 30′ 0.5″ E", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117º30’0.5”", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117d30'0.5''E", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117-30-00.5", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("117:30:00.5", lon, 117 + 1800.5 / 3600, "117.50013888888888");
    row("-0:45:30", lat, -2730.0 / 3600, "-0.7583333333333333");
    row("−0 45 30", lat, -2730.0 / 3600, "-0.7583333333333333");
    row("0 45 30 S", lat, -2730.0 / 3600, "-0.7583333333333333");
    row("S 45 30.5", lat, -45 - 30.5 / 60, "-45.50833333333333");
    row("45°30", lat, 45.5, "45.5");
    row("45°30.5'", lat, 45 + 30.5 / 60, "45.50833333333333");
    row("53 18 56.9537", az, 53 + 1136.9537 / 3600, "53.31582047222222");
    row("8°59'59.99999999\"", lat, 8 + 3599.99999999 / 3600, "8.999999999997222");
}

void TestPanel::readsAngles() {
    QFETCH(QString, typed);
    QFETCH(AngleRole, role);
    QFETCH(double, degrees);
    QFETCH(QString, stored);
    const AngleInput input = AngleText::parse(typed, role);
    QVERIFY2(input.valid, qPrintable(input.reason));
    QVERIFY(qAbs(input.degrees - degrees) <= 1e-13);
    QCOMPARE(std::signbit(input.degrees), std::signbit(degrees));
    QCOMPARE(input.decimal, stored);
    QCOMPARE(input.decimal.toDouble(), input.degrees);
}

void TestPanel::refusesAngles_data() {
    QTest::addColumn<AngleRole>("role");
    const auto row = [](const char* typed, AngleRole role) { QTest::newRow(typed) << role; };
    const AngleRole lat = AngleRole::Latitude, lon = AngleRole::Longitude, az = AngleRole::Azimuth;
    for (const char* typed :
         {"117,5",  "117 60 00",      "117 30 60", "117.5 30", "117 30.5 10", "-45S", "+45N", "N45S", "45 30 20 10",
          "45 -30", "4 5 .",          "1e2",       "nan",      "inf",         "0x10", "--45", "45°°", "45.5.5",
          "forty",  "45 30' 20\" \"", "١٢"})
        row(typed, lat);
    row("45E", lat);
    row("7N", lon);
    row("53N", az);
}

void TestPanel::refusesAngles() {
    QFETCH(AngleRole, role);
    const AngleInput input = AngleText::parse(QString::fromUtf8(QTest::currentDataTag()), role);
    QVERIFY(!input.valid);
    QVERIFY(!input.reason.isEmpty());
}

void TestPanel::formatsAngles_data() {
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("decimal");
    QTest::addColumn<QString>("sexagesimal");
    QTest::newRow("half") << 117.5 << "117.5"
                          << "117°30'00\"";
    QTest::newRow("seconds") << 117 + 1800.5 / 3600 << "117.50013888888888"
                             << "117°30'00.5\"";
    QTest::newRow("third") << 49.83333333333334 << "49.83333333333334"
                           << "49°50'00\"";
    QTest::newRow("carries over") << 8.9999999999999 << "8.9999999999999"
                                  << "9°00'00\"";
    QTest::newRow("keeps 1e-11") << 9.00000000001 << "9.00000000001"
                                 << "9°00'00.00000004\"";
    QTest::newRow("negative below one") << -2730.0 / 3600 << "-0.7583333333333333"
                                        << "-0°45'30\"";
    QTest::newRow("zero") << 0.0 << "0"
                          << "0°00'00\"";
}

void TestPanel::formatsAngles() {
    QFETCH(double, degrees);
    QTEST(AngleText::format(degrees, AngleNotation::DecimalDegrees), "decimal");
    const QString sexagesimal = AngleText::format(degrees, AngleNotation::DegreesMinutesSeconds);
    QTEST(sexagesimal, "sexagesimal");
    QVERIFY(qAbs(AngleText::parse(sexagesimal, AngleRole::Longitude).degrees - degrees) < 2e-12);
}

void TestPanel::readsNumbers_data() {
    QTest::addColumn<QString>("stored"); // empty: refused
    QTest::newRow("500000") << "500000";
    QTest::newRow(" 500000.50 ") << "500000.50";
    QTest::newRow("+1") << "1";
    QTest::newRow("-0.1") << "-0.1";
    QTest::newRow("−0.1") << "-0.1";
    QTest::newRow("1e6") << "1e6";
    for (const char* typed :
         {"", "-", ".", "500,5", "1,000,000", "500 000", "0x10", "nan", "inf", "1e999", "1e", "500000m", "1.2.3", "٥"})
        QTest::newRow(*typed ? typed : "nothing") << "";
}

void TestPanel::readsNumbers() {
    QFETCH(QString, stored);
    const QString typed = QString::fromUtf8(QTest::currentDataTag());
    double number = 0;
    QString plain;
    QCOMPARE(NumberText::parse(typed == "nothing" ? QString() : typed, &number, &plain), !stored.isEmpty());
    QCOMPARE(plain, stored);
    QCOMPARE(number, stored.toDouble());
}

void TestPanel::givesBackUneditedRecord_data() {
    QTest::addColumn<int>("kind"); // -1: a fresh one, -2: odd texts, -3: nothing
    for (const ProjectionFields& kind : ProjectionFields::all())
        QTest::newRow(kind.name) << int(kind.kind);
    QTest::newRow("fresh") << -1;
    QTest::newRow("odd texts") << -2;
    QTest::newRow("empty") << -3;
}

void TestPanel::givesBackUneditedRecord() {
    QFETCH(int, kind);
    DictionaryGuard record;
    if (kind >= 0) {
        fillImported(record.get(), ProjectionKind(kind));
    } else if (kind == -1) {
        fillFresh(record.get());
    } else if (kind == -2) {
        fillImported(record.get(), ProjectionKind::LambertTwoParallels);
        for (const char* key : {ellipsoidA, orgLat, factor, parallel1Lat, shiftRx, cuttingRadius, geoidName})
            record->setText(key, "1,5 \xe2\x82\xac %s");
        record->setText(orgLon, "  +0009.50 ");
        record->setText(projectType, "9 ");
        record->setText(shiftType, "7");
        record->setText(parallel2Lat, "");
    }
    const QStringList before = dump(*record);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Ellipsoid);
    for (int tab = 0; tab < 4; ++tab) {
        screen.panel->setCurrentIndex(tab);
        for (const AngleNotation notation : {AngleNotation::DegreesMinutesSeconds, AngleNotation::DecimalDegrees}) {
            if (tab == PanelOnScreen::Projection)
                screen.choose(DlgCoordParam::tr("Show angles in"), int(notation));
            const auto edits = screen.panel->findChildren<QLineEdit*>();
            for (QLineEdit* edit : edits) {
                edit->setFocus();
                QTest::keyClick(edit, Qt::Key_End);
                QTest::keyClick(edit, Qt::Key_Escape);
                QTest::keyClick(edit, Qt::Key_Return);
            }
        }
        QCOMPARE(dump(screen.record()), before);
    }
    screen.panel->setCoordParam(screen.record());
    QCOMPARE(dump(screen.record()), before);
    QCOMPARE(screen.edits->count(), 0);
}

void TestPanel::editsEveryField_data() {
    QTest::addColumn<ProjectionKind>("kind");
    QTest::addColumn<int>("index");
    for (const ProjectionFields& kind : ProjectionFields::all()) {
        for (size_t i = 0; i < kind.fields.size(); ++i)
            QTest::addRow("%d %s", int(kind.kind), kind.fields[i].key) << kind.kind << int(i);
    }
}

void TestPanel::editsEveryField() {
    QFETCH(ProjectionKind, kind);
    QFETCH(int, index);
    const ProjectionFields* fields = ProjectionFields::find(int(kind));
    const ParamField& field = fields->fields[size_t(index)];
    DictionaryGuard record;
    fillImported(record.get(), kind);
    if (kind == ProjectionKind::Stereographic)
        dic_set_value(record.get(), factor, "%f", 1.0);
    const QStringList before = dump(*record);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    QCOMPARE(screen.shownKind(), int(kind));

    // The field stands where the table says, with its unit, and shows the record's number with all its digits.
    const bool isScale = field.quantity == Quantity::ScaleFactor;
    QLineEdit* edit = screen.field(field.label);
    QVERIFY(edit);
    double number;
    if (field.quantity == Quantity::TrueScaleParallel)
        QCOMPARE(edit->text(), QString("30"));
    else if (record->getNumber(field.key, &number))
        QCOMPARE(edit->text().toDouble(), number);

    const bool isParallel = field.quantity == Quantity::TrueScaleParallel;
    const QString typed = isScale ? "0.99987" : field.quantity == Quantity::Length ? "-1234.5670" : "12.3450";
    screen.type(field.label, typed);
    // Every keystroke is in the record at once, but "0" and "0.", "-", and what leaves a computed radius as it is.
    QCOMPARE(screen.edits->count(), typed.size() - (isScale || isParallel ? 2 : typed.startsWith('-') ? 1 : 0));
    QStringList expected(field.key);
    if (kind == ProjectionKind::TransverseMercator && isScale)
        expected << projectType;
    expected.sort();
    QCOMPARE(changedKeys(before, screen.record()), expected);
    if (isParallel)
        QCOMPARE(dictionary_number(screen.record(), field.key, 0), 6378137.0 * std::cos(12.345 * degree));
    else
        QCOMPARE(QString(text(screen.record(), field.key)), typed);

    // Read back from the record, in whichever notation.
    DictionaryGuard edited;
    dictionary_assign(edited.get(), &screen.record());
    AngleText::setNotation(AngleNotation::DegreesMinutesSeconds);
    screen.show(*edited, PanelOnScreen::Projection);
    edit = screen.field(field.label);
    QCOMPARE(edit->text(), field.isAngle() ? "12°20'42\"" : typed);
    QCOMPARE(dump(screen.record()), dump(*edited));
}

void TestPanel::definesFreshSystem_data() {
    QTest::addColumn<ProjectionKind>("kind");
    for (const ProjectionFields& kind : ProjectionFields::all())
        QTest::newRow(kind.name) << kind.kind;
}

void TestPanel::definesFreshSystem() {
    QFETCH(ProjectionKind, kind);
    PanelOnScreen screen;
    // As created, as the import writes a definition that fits no kind, and without even an ellipsoid.
    for (int state = 0; state < 3; ++state) {
        DictionaryGuard record;
        if (state < 2)
            fillFresh(record.get());
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
        screen.chooseKind(kind);
        QCOMPARE(screen.edits->count(), 1);
        if (state == 2) {
            screen.panel->setCurrentIndex(PanelOnScreen::Ellipsoid);
            auto* box = screen.visible<SearchBox>("Ellipsoid");
            Q_EMIT box->chosen("Bessel 1841");
        }
        QVERIFY(coordParamDefinesProjection(screen.record()));
        QCOMPARE(ProjectionAdvice::problem(screen.record()), QString());
        QCOMPARE(text(screen.record(), projectType), QByteArray::number(int(kind)));
        const ParamField* scale = ProjectionFields::find(int(kind))->field(factor);
        if (scale && !scale->optional)
            QCOMPARE(dictionary_number(screen.record(), factor, 0),
                     kind == ProjectionKind::TransverseMercatorScaled ? 0.9996 : 1.0);
    }
}

void TestPanel::definesByItsFields_data() {
    definesFreshSystem_data();
}

/// The keys that the kind's fields write are those that make its definition, and no others.
void TestPanel::definesByItsFields() {
    QFETCH(ProjectionKind, kind);
    DictionaryGuard record;
    fillImported(record.get(), kind);
    if (kind == ProjectionKind::Stereographic) {
        record->setText(orgLat, "90");
        record->setText(factor, "1");
    }
    const QByteArray before = coordParamToProjDefine(*record);
    QVERIFY(!before.isEmpty());
    for (const char* key : {orgLon, orgLat, falseNorth, falseEast, factor, cuttingRadius, parallel1Lat, parallel2Lat,
                            azimuth, lon1, lat1, lon2, lat2}) {
        DictionaryGuard other;
        dictionary_assign(other.get(), record.get());
        dic_set_value(other.get(), key, "%f", dictionary_number(*record, key, 0) * 0.99 + 0.001);
        QVERIFY2((coordParamToProjDefine(*other) != before) ==
                     (ProjectionFields::ofRecord(*record)->field(key) != nullptr),
                 key);
    }
}

void TestPanel::keepsValuesOfOtherKinds() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::MercatorStandardParallel);
    const QStringList before = dump(*record);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    for (const ProjectionFields& kind : ProjectionFields::all())
        screen.chooseKind(kind.kind);
    screen.chooseKind(ProjectionKind::Mercator);
    QCOMPARE(dictionary_number(screen.record(), cuttingRadius, 0), 6378137.0);
    screen.chooseKind(ProjectionKind::TransverseMercator);
    QCOMPARE(text(screen.record(), factor), QByteArray("1.000000"));
    screen.chooseKind(ProjectionKind::TransverseMercatorScaled);
    QCOMPARE(screen.field("Scale factor")->text(), QString("0.9999"));
    screen.chooseKind(ProjectionKind::MercatorStandardParallel);
    QCOMPARE(dump(screen.record()), before);

    // What was typed under another kind stays typed.
    screen.chooseKind(ProjectionKind::TransverseMercator);
    screen.type("Scale factor", "0.9997");
    screen.chooseKind(ProjectionKind::Mercator);
    QCOMPARE(screen.field("Scale factor")->text(), QString("0.9997"));
}

void TestPanel::followsScaleFactor() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    const QList<QPair<QString, int>> steps = {{"0.9996", 1}, {"1", 0}, {"1.0000", 0}, {"1.00002", 1}, {"x", 1}};
    for (const auto& step : steps) {
        screen.type("Scale factor", step.first);
        QCOMPARE(text(screen.record(), projectType), QByteArray::number(step.second));
        QCOMPARE(screen.shownKind(), step.second);
        QVERIFY(coordParamDefinesProjection(screen.record()));
    }
    QCOMPARE(text(screen.record(), factor), QByteArray("1.00002"));
}

void TestPanel::keepsTrueScaleParallel_data() {
    QTest::addColumn<ProjectionKind>("kind");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("parallel");
    QTest::newRow("Mercator") << ProjectionKind::MercatorStandardParallel << 0.0 << 41.0;
    QTest::newRow("Mercator, all digits") << ProjectionKind::MercatorStandardParallel << 0.0 << 20.123456789012;
    QTest::newRow("Mercator, near the equator") << ProjectionKind::MercatorStandardParallel << 0.0 << 0.5;
    QTest::newRow("North pole") << ProjectionKind::Stereographic << 90.0 << 71.0;
    QTest::newRow("South pole") << ProjectionKind::Stereographic << -90.0 << -71.0;
    QTest::newRow("plain Mercator") << ProjectionKind::Mercator << 0.0 << 0.0;
}

void TestPanel::keepsTrueScaleParallel() {
    QFETCH(ProjectionKind, kind);
    QFETCH(double, latitude);
    QFETCH(double, parallel);
    PanelOnScreen screen;
    DictionaryGuard record;
    fillFresh(record.get());
    screen.show(*record, PanelOnScreen::Projection);
    screen.chooseKind(kind);
    if (kind == ProjectionKind::Stereographic) {
        QCOMPARE(screen.field("Standard parallel")->text(), QString());
        screen.type("Latitude of origin", QString::number(latitude));
    }
    if (kind != ProjectionKind::Mercator)
        screen.type("Standard parallel", QString::number(parallel, 'g', 15));
    const double cosine = std::cos(parallel * degree);
    QVERIFY(qAbs(dictionary_number(screen.record(), cuttingRadius, 0) - 6378137.0 * cosine) < 1e-8);

    // Another axis, typed or chosen, leaves the parallel where it is.
    QStringList before = dump(screen.record());
    screen.panel->setCurrentIndex(PanelOnScreen::Ellipsoid);
    screen.type("Semi-major axis a", "6377397.155");
    QCOMPARE(changedKeys(before, screen.record()), QStringList({cuttingRadius, ellipsoidA}));
    QVERIFY(qAbs(dictionary_number(screen.record(), cuttingRadius, 0) - 6377397.155 * cosine) < 1e-8);
    Q_EMIT screen.visible<SearchBox>("Ellipsoid")->chosen("WGS 84");
    QVERIFY(qAbs(dictionary_number(screen.record(), cuttingRadius, 0) - 6378137.0 * cosine) < 1e-8);
    screen.panel->setCurrentIndex(PanelOnScreen::Projection);
    if (kind != ProjectionKind::Mercator)
        QCOMPARE(screen.field("Standard parallel")->text(), QString::number(parallel, 'g', 15));
    QVERIFY(coordParamDefinesProjection(screen.record()));

    if (kind == ProjectionKind::Stereographic) {
        screen.type("Standard parallel", "");
        QCOMPARE(dictionary_number(screen.record(), cuttingRadius, 1), 0.0);
    }
}

void TestPanel::keepsLastGoodValue_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("good");
    QTest::addColumn<QString>("bad"); // typed behind the good text
    QTest::addColumn<QString>("range");
    const auto row = [](int tab, const char* label, const char* key, const char* good, const char* bad,
                        const char* range) {
        QTest::addRow("%s %s%s", label, good, bad) << tab << label << key << good << bad << range;
    };
    const int projection = PanelOnScreen::Projection;
    row(projection, "Central meridian", orgLon, "117", ",5", "±180°");
    row(projection, "Central meridian", orgLon, "18", "1", "±180°");
    row(projection, "Central meridian", orgLon, "117 5", "N", "±180°");
    row(projection, "Latitude of origin", orgLat, "45 30 6", "0", "±90°");
    row(projection, "Latitude of origin", orgLat, "9", "1", "±90°");
    row(projection, "Standard parallel 1", parallel1Lat, "9", "0", "between -90 and 90°");
    row(projection, "Scale factor", factor, "1", "1", "0.1 to 10");
    row(projection, "False easting", falseEast, "500", " 000", "±1000000000 m");
    row(projection, "False northing", falseNorth, "0", "x10", "±1000000000 m");
    row(PanelOnScreen::Ellipsoid, "Semi-major axis a", ellipsoidA, "6378137", ",0", "1000 to 1000000000 m");
    row(PanelOnScreen::Ellipsoid, "Inverse flattening 1/f", ellipsoidF, "298.2572", "e", "0 (sphere), or more than 1");
    row(PanelOnScreen::Shift, "Translation X", shiftDx, "598.1", "e9", "±10000000 m");
    row(PanelOnScreen::Shift, "Scale difference", shiftPpm, "6.7", "?", "±100000 ppm");
}

void TestPanel::keepsLastGoodValue() {
    QFETCH(int, tab);
    QFETCH(QString, label);
    QFETCH(QString, key);
    QFETCH(QString, good);
    QFETCH(QString, bad);
    QFETCH(QString, range);
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::LambertTwoParallels);
    PanelOnScreen screen;
    screen.show(*record, tab);
    QLineEdit* edit = screen.type(label.toUtf8().constData(), good);
    QVERIFY(edit);
    QCOMPARE(screen.messages().filter(range), QStringList());
    const QByteArray kept = text(screen.record(), key.toLatin1().constData());
    const QStringList before = dump(screen.record());
    screen.edits->clear();

    QTest::keyClicks(edit, bad);
    QCOMPARE(edit->text(), good + bad);
    const QStringList messages = screen.messages().filter(range);
    QCOMPARE(messages.size(), 1);
    QCOMPARE(edit->toolTip(), messages.first());
    QCOMPARE(edit->accessibleDescription(), messages.first());
    QCOMPARE(dump(screen.record()), before);
    QCOMPARE(screen.edits->count(), 0);

    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(edit->text(), good + bad);
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(screen.panel->isVisible());
    QCOMPARE(screen.messages().filter(range), QStringList());
    QCOMPARE(dump(screen.record()), before);
    QCOMPARE(text(screen.record(), key.toLatin1().constData()), kept);

    // Another system: nothing of the refused text goes along.
    QTest::keyClicks(edit, "x");
    screen.show(*record, tab);
    QCOMPARE(dump(screen.record()), dump(*record));
    QCOMPARE(screen.messages().filter(range), QStringList());
}

void TestPanel::saysWhatIsWrong_data() {
    QTest::addColumn<ProjectionKind>("kind");
    QTest::addColumn<QStringList>("values"); // key, text, ...; a text "-" removes the key
    QTest::addColumn<QString>("message");    // a part of it; empty: there is none
    using Kind = ProjectionKind;
    const auto row = [](const char* title, Kind kind, const QStringList& values, const char* message) {
        QTest::newRow(title) << kind << values << message;
    };
    row("all well", Kind::TransverseMercator, {}, "");
    row("kind 0 with a factor", Kind::TransverseMercator, {factor, "0.000000"}, "none of the kinds");
    row("kind 0 without a factor", Kind::TransverseMercator, {factor, "-"}, "Scale factor");
    row("no kind", Kind::TransverseMercator, {projectType, "-"}, "choose the kind");
    row("kind 5", Kind::TransverseMercator, {projectType, "5"}, "\"5\" is unknown");
    row("no ellipsoid", Kind::TransverseMercator, {ellipsoidA, "-"}, "no ellipsoid");
    row("missing key", Kind::LambertTwoParallels, {parallel2Lat, "-"}, "Standard parallel 2");
    row("no number", Kind::CassiniSoldner, {orgLon, "9,5"}, "Central meridian");
    row("parallels cancel", Kind::LambertTwoParallels, {parallel1Lat, "-50", parallel2Lat, "50"}, "cancel out");
    row("parallels nearly cancel", Kind::LambertTwoParallels, {parallel1Lat, "-50", parallel2Lat, "50.2"},
        "nearly cancel");
    row("equator alone", Kind::LambertOneParallel, {parallel1Lat, "0"}, "cancel out");
    row("no second factor", Kind::LambertTwoParallels, {factor, "0.000000"}, "");
    row("points level", Kind::ObliqueMercatorTwoPoints, {lat2, "46.3"}, "latitudes of the points equal");
    row("polar with both", Kind::Stereographic, {orgLat, "90", factor, "0.994"}, "needs the scale factor 1");
    row("polar with neither", Kind::Stereographic, {orgLat, "90", factor, "0", cuttingRadius, "0"}, "scale factor");
    row("parallel off the pole", Kind::Stereographic, {orgLat, "52", factor, "1"}, "no pole");
    row("far from 1", Kind::TransverseMercatorScaled, {factor, "0.95"}, "close to 1");
    row("other UTM zone", Kind::TransverseMercatorScaled, {name, "X / UTM zone 32N", orgLon, "15"}, "Zone 32 of UTM");
    row("its UTM zone", Kind::TransverseMercatorScaled, {name, "UTM1", orgLon, "-177"}, "");
    row("zone", Kind::TransverseMercator, {falseEast, "39500000", orgLon, "117"}, "");
    row("zone of 6 degrees", Kind::TransverseMercator, {falseEast, "20500000", orgLon, "117"}, "");
    row("other zone", Kind::TransverseMercator, {falseEast, "39500000", orgLon, "120"}, "zone 39");
}

void TestPanel::saysWhatIsWrong() {
    QFETCH(ProjectionKind, kind);
    QFETCH(QStringList, values);
    QFETCH(QString, message);
    DictionaryGuard record;
    fillImported(record.get(), kind);
    if (kind == ProjectionKind::LambertOneParallel)
        record->setText(orgLat, "46.3");
    for (int i = 0; i < values.size(); i += 2) {
        if (values[i + 1] == "-")
            record->remove(values[i].toLatin1().constData());
        else
            record->setText(values[i].toLatin1().constData(), values[i + 1].toLatin1().constData());
    }
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    const QString said = screen.messages().join('\n');
    QVERIFY2(message.isEmpty() ? said.isEmpty() : said.contains(message), qPrintable(said));
    // The one predicate decides; the panel adds only what no formula can compute.
    if (!coordParamDefinesProjection(*record))
        QVERIFY(screen.messages().first().startsWith("No projection"));
}

void TestPanel::showsAnglesAsChosen() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    QLineEdit* meridian = screen.type("Central meridian", "117 30 00.5");
    QVERIFY(screen.messages().contains("= 117°30'00.5\""));
    QTest::keyClick(meridian, Qt::Key_Tab);
    QCOMPARE(meridian->text(), QString("117.50013888888888"));
    QCOMPARE(text(screen.record(), orgLon), QByteArray("117.50013888888888"));
    QLineEdit* latitude = screen.type("Latitude of origin", "91");

    screen.edits->clear();
    screen.choose("Show angles in", int(AngleNotation::DegreesMinutesSeconds));
    QCOMPARE(meridian->text(), QString("117°30'00.5\""));
    QCOMPARE(latitude->text(), QString("91")); // what was refused stays to be mended
    QCOMPARE(screen.edits->count(), 0);

    // Typed in decimal it is stored as typed and then shown as chosen, in the next panel too.
    screen.type("Central meridian", "117.50");
    QTest::keyClick(meridian, Qt::Key_Return);
    QCOMPARE(meridian->text(), QString("117°30'00\""));
    QCOMPARE(text(screen.record(), orgLon), QByteArray("117.50"));
    PanelOnScreen other;
    other.show(*record, PanelOnScreen::Projection);
    QCOMPARE(other.field("Latitude of origin")->text(), QString("49°50'00\""));
}

void TestPanel::showsAllDigits() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    dic_set_value(record.get(), ellipsoidF, "%f", 298.257223563);
    record->setText(falseNorth, "12.500000");
    record->setText(falseEast, "500000.50");
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Projection);
    QCOMPARE(screen.field("Central meridian")->text(), QString("9.1234567890123"));
    QCOMPARE(screen.field("False northing")->text(), QString("12.5"));
    QCOMPARE(screen.field("False easting")->text(), QString("500000.50"));
    screen.panel->setCurrentIndex(PanelOnScreen::Ellipsoid);
    QCOMPARE(screen.field("Inverse flattening 1/f")->text(), QString("298.257223563"));
    QCOMPARE(screen.field("Semi-minor axis b")->text(), QString("6356752.314245"));
    QCOMPARE(screen.field("Eccentricity e")->text(), QString("0.081819190843"));
    screen.panel->setCurrentIndex(PanelOnScreen::Shift);
    QCOMPARE(screen.field("Rotation Z")->text(), QString("-2.455"));
}

void TestPanel::choosesEllipsoid() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    record->setText(ellipsoidName, "Ours");
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Ellipsoid);
    auto* box = screen.visible<SearchBox>("Ellipsoid");
    QCOMPARE(box->currentText(), QString("Ours"));
    QVERIFY(screen.messages().contains("Not in the list of ellipsoids."));

    // The catalogue's record is taken over, digits and all.
    IDictionary* added = screen.catalogue.addTestEllipsoid("New", "", "", "0");
    dic_set_value(added, ellipsoidA, "%f", 6377483.865280419);
    dic_set_value(added, ellipsoidF, "%f", 299.1528128);
    const QStringList before = dump(screen.record());
    box->showPopup();
    box->hidePopup();
    QVERIFY(box->findText("New") >= 0);
    screen.choose("Ellipsoid", box->findText("New"));
    QCOMPARE(changedKeys(before, screen.record()), QStringList({ellipsoidA, ellipsoidF, ellipsoidName}));
    QCOMPARE(text(screen.record(), ellipsoidName), QByteArray("New"));
    QCOMPARE(dictionary_number(screen.record(), ellipsoidA, 0), 6377483.865280419);
    QCOMPARE(screen.field("Semi-major axis a")->text(), QString("6377483.865280419"));
    QCOMPARE(screen.messages(), QStringList());
    QCOMPARE(screen.edits->count(), 1);

    screen.type("Semi-major axis a", "6377483");
    QVERIFY(screen.messages().join(' ').contains("differ"));
    screen.catalogue.deleteEllipsoid("New");
    screen.panel->setCoordParam(screen.record());
    QCOMPARE(box->currentText(), QString("New"));
    QCOMPARE(box->findText("New"), -1);
}

void TestPanel::searchesEllipsoid() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Ellipsoid);
    auto* box = screen.visible<SearchBox>("Ellipsoid");
    const auto found = [box] { return box->completer()->completionModel()->rowCount(); };
    const auto search = [box](const QString& typed) {
        box->setFocus();
        box->lineEdit()->selectAll();
        QTest::keyClicks(box, typed);
    };
    search("bess");
    QCOMPARE(found(), 2);
    QVERIFY(box->completer()->popup()->isVisible());
    QCOMPARE(screen.edits->count(), 0);
    QTest::keyClick(box->completer()->popup(), Qt::Key_Escape);
    QCOMPARE(box->currentText(), QString("GRS 1980"));
    QVERIFY(!box->completer()->popup()->isVisible());
    QVERIFY(screen.panel->isVisible());

    search("1841 BESS");
    QCOMPARE(found(), 1);
    QTest::keyClick(box->completer()->popup(), Qt::Key_Return);
    QCOMPARE(text(screen.record(), ellipsoidName), QByteArray("Bessel 1841"));
    QCOMPARE(text(screen.record(), ellipsoidA), QByteArray("6377397.155"));
    QCOMPARE(screen.edits->count(), 1);

    search("wgs");
    QTest::keyClick(box->completer()->popup(), Qt::Key_Down);
    QTest::keyClick(box->completer()->popup(), Qt::Key_Return);
    QCOMPARE(text(screen.record(), ellipsoidName), QByteArray("WGS 84"));
    QCOMPARE(screen.edits->count(), 2);

    // What is no name of the list gives way when the user leaves; arrow keys open the list and choose nothing.
    search("no such");
    QTest::keyClick(box, Qt::Key_Tab);
    QCOMPARE(box->currentText(), QString("WGS 84"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    box->hidePopup();
    QCOMPARE(screen.edits->count(), 2);
}

void TestPanel::editsShift() {
    DictionaryGuard record;
    fillFresh(record.get());
    dic_set_value(record.get(), shiftType, "%d", 0);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Shift);
    QVERIFY(!screen.field("Rotation X"));
    screen.choose("Shift to WGS 84", 1);
    QCOMPARE(text(screen.record(), shiftType), QByteArray("2"));
    QCOMPARE(dictionary_number(screen.record(), shiftPpm, 1), 0.0);

    screen.type("Translation X", "-87");
    screen.type("Rotation X", "-0.1502");
    screen.type("Rotation Z", "0.50");
    QCOMPARE(text(screen.record(), shiftDx), QByteArray("-87"));
    QCOMPARE(dictionary_number(screen.record(), shiftRx, 0), -0.1502 / 3600);
    screen.panel->setCoordParam(screen.record());
    QCOMPARE(screen.field("Rotation X")->text(), QString("-0.1502"));

    const QStringList before = dump(screen.record());
    auto* reverse = screen.panel->findChildren<QPushButton*>().first();
    QTest::mouseClick(reverse, Qt::LeftButton);
    QCOMPARE(screen.field("Rotation X")->text(), QString("0.1502"));
    QCOMPARE(screen.field("Rotation Y")->text(), QString("0"));
    QCOMPARE(screen.field("Rotation Z")->text(), QString("-0.5"));
    QCOMPARE(changedKeys(before, screen.record()), QStringList({shiftRx, shiftRz}));
    QVERIFY(screen.messages().join(' ').contains("reversed"));
    QTest::mouseClick(reverse, Qt::LeftButton);
    QCOMPARE(dump(screen.record()), before);

    screen.choose("Shift to WGS 84", 0);
    QCOMPARE(text(screen.record(), shiftType), QByteArray("0"));
    screen.choose("Shift to WGS 84", 1);
    QCOMPARE(dump(screen.record()), before);
}

void TestPanel::choosesGeoid() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    const QStringList before = dump(*record);
    PanelOnScreen screen;
    screen.show(*record, PanelOnScreen::Height);
    auto* box = screen.visible<SearchBox>("Geoid model");
    QCOMPARE(box->currentText(), QString("(none)"));
    screen.catalogue.addTestGeoid("Ours", "ours.ggf", "GRS 1980", "0");
    box->showPopup();
    box->hidePopup();
    screen.choose("Geoid model", box->findText("Ours"));
    QCOMPARE(changedKeys(before, screen.record()), QStringList(geoidName));
    QCOMPARE(text(screen.record(), geoidName), QByteArray("Ours"));
    QCOMPARE(screen.messages(), QStringList());
    screen.choose("Geoid model", box->findText("EGM2008"));
    QVERIFY(screen.messages().join(' ').contains("another ellipsoid"));
    screen.catalogue.deleteGeoid("EGM2008");
    screen.panel->setCoordParam(screen.record());
    QCOMPARE(box->currentText(), QString("EGM2008"));
    QVERIFY(screen.messages().join(' ').contains("Not in the list"));
    screen.choose("Geoid model", 0);
    QCOMPARE(dump(screen.record()), before);
}

void TestPanel::takesOverValues() {
    CoordParamEditor editor;
    DictionaryGuard record, values;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    editor.setRecord(*record);

    // A better scale factor makes the other kind of it.
    dic_set_value(values.get(), factor, "%f", 0.99987654321);
    QStringList before = dump(editor.record());
    editor.replaceValues(*values);
    QCOMPARE(changedKeys(before, editor.record()), QStringList({factor, projectType}));
    QCOMPARE(dictionary_number(editor.record(), factor, 0), 0.99987654321);

    // A whole definition: the name and foreign keys stay, the shift that it lacks goes.
    fillImported(values.get(), ProjectionKind::LambertTwoParallels);
    for (const ParamField& field : DatumFields::shift())
        values->remove(field.key);
    dic_set_value(values.get(), shiftType, "%d", 0);
    values->remove(name);
    values->remove("a_key_of_another_version");
    editor.replaceValues(*values);
    QCOMPARE(text(editor.record(), name), QByteArray("New"));
    QVERIFY(editor.record().getValue("a_key_of_another_version"));
    QVERIFY(!editor.record().getValue(shiftDx));
    QCOMPARE(text(editor.record(), projectType), QByteArray("9"));
}

void TestPanel::refusesEditsWhenReadOnly() {
    DictionaryGuard record;
    fillImported(record.get(), ProjectionKind::TransverseMercator);
    PanelOnScreen screen(true);
    for (int tab = 0; tab < 4; ++tab) {
        screen.show(*record, tab);
        const auto edits = screen.panel->findChildren<QLineEdit*>();
        for (QLineEdit* edit : edits) {
            if (edit->isVisible())
                QTest::keyClicks(edit, "1");
        }
        const auto boxes = screen.panel->findChildren<QComboBox*>();
        for (QComboBox* box : boxes) {
            if (box->isVisible() && box->accessibleName() != "Show angles in")
                QTest::keyClick(box, Qt::Key_Down);
        }
        const auto buttons = screen.panel->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->isVisible())
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(dump(screen.record()), dump(*record));
        QCOMPARE(screen.edits->count(), 0);
    }
}

void TestPanel::goesThroughFieldsByTab() {
    PanelOnScreen screen;
    for (const ProjectionFields& kind : ProjectionFields::all()) {
        DictionaryGuard record;
        fillImported(record.get(), kind.kind);
        screen.show(*record, PanelOnScreen::Projection);
        screen.visible<QComboBox>("Kind of projection")->setFocus();
        for (const ParamField& field : kind.fields) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->accessibleName(), DlgCoordParam::tr(field.label));
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("Show angles in"));
    }
}

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

void TestPanel::fitsItsWindow_data() {
    QTest::addColumn<bool>("longTexts");
    QTest::newRow("English") << false;
    QTest::newRow("40 % longer") << true;
}

void TestPanel::fitsItsWindow() {
    QFETCH(bool, longTexts);
    LongTranslation translation;
    if (longTexts)
        QVERIFY(QCoreApplication::installTranslator(&translation));
    // The usual size on a desktop; the offscreen platform takes a larger one.
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPixelSize(13);
    QApplication::setFont(font);
    PanelOnScreen screen;
    const auto needsNoScrolling = [&screen] {
        QApplication::processEvents();
        const auto* area = screen.panel->currentWidget()->findChild<QScrollArea*>();
        return area->horizontalScrollBar()->maximum() == 0 && area->verticalScrollBar()->maximum() == 0;
    };
    for (const ProjectionFields& kind : ProjectionFields::all()) {
        DictionaryGuard record;
        fillImported(record.get(), kind.kind);
        for (int tab = 0; tab < 4; ++tab) {
            screen.show(*record, tab);
            QVERIFY2(needsNoScrolling(), qPrintable(QString("%1, tab %2").arg(kind.name).arg(tab)));
        }
    }
    QApplication::setFont(usual);
}

ROOM_TEST_MAIN(TestPanel)
#include "test_panel.moc"
