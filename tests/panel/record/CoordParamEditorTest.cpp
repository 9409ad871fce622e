#include "panel/record/CoordParamEditor.h"

#include "import/CoordParamToProjDefine.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

namespace Key = CoordParamKey;

Q_DECLARE_METATYPE(ProjectionMethod)

namespace {

constexpr double degree = 3.141592653589793 / 180;
constexpr auto GaussKrueger = ProjectionMethod::TransverseMercator;
constexpr auto Utm = ProjectionMethod::TransverseMercatorScaled;
constexpr auto Lambert = ProjectionMethod::LambertTwoParallels;
constexpr auto Mercator = ProjectionMethod::MercatorStandardParallel;

QByteArray value(const CoordParamEditor& editor, const char* key) {
    return editor.record().getValue(key);
}

double number(const CoordParamEditor& editor, const char* key) {
    return dictionary_number(editor.record(), key, qQNaN());
}

ProjectionMethod method(const CoordParamEditor& editor) {
    return ProjectionFields::ofRecord(editor.record())->method;
}

/// The field of the record's method, or of the ellipsoid, that reads and writes `key`.
const ParamField& field(const CoordParamEditor& editor, const char* key) {
    return DatumFields::semiMajorAxis().is(key) ? DatumFields::semiMajorAxis()
                                                : *ProjectionFields::ofRecord(editor.record())->field(key);
}

bool set(CoordParamEditor& editor, const char* key, const QString& text) {
    return editor.setField(field(editor, key), field(editor, key).parse(text));
}

/// Types one character after the other; whether the last one changed the record.
bool type(CoordParamEditor& editor, const char* key, const QString& text) {
    bool isChanged = false;
    for (int length = 1; length <= text.size(); ++length)
        isChanged = editor.type(field(editor, key), field(editor, key).parse(text.left(length)));
    return isChanged;
}

QStringList toChoose(const CoordParamEditor& editor) {
    QStringList keys;
    for (const ParamField& field : ProjectionFields::ofRecord(editor.record())->fields) {
        if (editor.isToChoose(field))
            keys << field.key;
    }
    return keys;
}

} // namespace

class CoordParamEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void definesFreshSystem_data() {
        const Rows<ProjectionMethod> row({"method"});
        for (const ProjectionFields& projection : ProjectionFields::all())
            row(projection.name, projection.method);
    }

    void definesFreshSystem() {
        QFETCH(ProjectionMethod, method);
        // As created, as the import writes a definition that fits no method, from a pole, and without an ellipsoid.
        for (int state = 0; state < 4; ++state) {
            const DictionaryGuard record = state < 3 ? PanelRecords::fresh() : DictionaryGuard();
            if (state == 1) {
                for (const char* key :
                     {Key::orgLon, Key::orgLat, Key::falseNorth, Key::falseEast, Key::factor, Key::cuttingRadius,
                      Key::parallel1Lat, Key::parallel2Lat, Key::azimuth, Key::lon1, Key::lon2, Key::lat1, Key::lat2})
                    dic_set_value(record.get(), key, "%f", 0.0);
                dic_set_value(record.get(), Key::projectType, "%d", 0);
            }
            if (state == 2)
                PanelRecords::change(*record, {"project_type=6", "org_lat=-90", "org_lon=0", "factor=0.994"});
            CoordParamEditor editor;
            editor.setRecord(*record);
            QCOMPARE(coordParamDefinesProjection(editor.record()), false);
            editor.setMethod(method);
            if (state == 3) {
                PanelRecords::change(*record, {"ellipsoid_a=6377397.155", "ellipsoid_f=299.1528128"});
                editor.setEllipsoid(*record);
            }
            QVERIFY(coordParamDefinesProjection(editor.record()));
            QCOMPARE(ProjectionAdvice::problem(editor.record()), QString());
            QCOMPARE(number(editor, Key::projectType), double(method));
            const ParamField* scale = ProjectionFields::find(int(method))->field(Key::factor);
            const bool isAzimuthal =
                method == ProjectionMethod::Stereographic || method == ProjectionMethod::ObliqueStereographic;
            if (scale && !(state == 2 && isAzimuthal))
                QVERIFY(number(editor, Key::factor) == (method == Utm ? 0.9996 : 1.0) || scale->optional);
            if (state == 2 && !isAzimuthal && ProjectionFields::find(int(method))->field(Key::orgLat))
                QVERIFY(number(editor, Key::orgLat) != -90.0);
        }
    }

    void keepsValuesOfOtherMethods() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(Mercator));
        const QStringList before = recordText(editor.record());
        for (const ProjectionFields& projection : ProjectionFields::all())
            editor.setMethod(projection.method);
        editor.setMethod(ProjectionMethod::Mercator);
        QCOMPARE(number(editor, Key::cuttingRadius), 6378137.0);
        editor.setMethod(Mercator);
        QCOMPARE(recordText(editor.record()), before);

        // Under another method with another axis, too, the parallel stays where it was.
        editor.setMethod(GaussKrueger);
        QVERIFY(set(editor, Key::factor, "0.9997"));
        QVERIFY(set(editor, Key::ellipsoidA, "6377397.155"));
        editor.setMethod(Mercator);
        QVERIFY(qAbs(number(editor, Key::cuttingRadius) - 6377397.155 * std::cos(30 * degree)) < 1e-8);

        // What is typed under another method stays typed.
        editor.setMethod(GaussKrueger);
        QVERIFY(set(editor, Key::falseEast, "500000.5"));
        editor.setMethod(Lambert);
        QCOMPARE(value(editor, Key::falseEast), "500000.5");

        // A scale factor that was left out stays out.
        QVERIFY(set(editor, Key::factor, ""));
        editor.setMethod(ProjectionMethod::LambertOneParallel);
        QCOMPARE(number(editor, Key::factor), 1.0);
        editor.setMethod(Lambert);
        QCOMPARE(value(editor, Key::factor), "0");
    }

    void givesEachMethodItsScale_data() {
        const Rows<ProjectionMethod, ProjectionMethod, QByteArray> row({"from", "to", "factor"});
        row("to a cone", Utm, Lambert, "1.000000");
        row("to a cone with one parallel", Utm, ProjectionMethod::LambertOneParallel, "1.000000");
        row("between cones", ProjectionMethod::LambertOneParallel, Lambert, "1.000000");
        row("to Gauss-Krueger", Utm, GaussKrueger, "1.000000");
        row("to UTM", GaussKrueger, Utm, "0.999600");
        row("from a cone to UTM", Lambert, Utm, "0.999600");
        row("the same line", ProjectionMethod::ObliqueMercatorAzimuth, ProjectionMethod::ObliqueMercatorTwoPoints,
            "0.999900");
        row("the same point", ProjectionMethod::ObliqueStereographic, ProjectionMethod::Stereographic, "0.999900");
        row("none in between", Utm, ProjectionMethod::CassiniSoldner, "0.999900");
    }

    void givesEachMethodItsScale() {
        QFETCH(ProjectionMethod, from);
        QFETCH(ProjectionMethod, to);
        QFETCH(QByteArray, factor);
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(from));
        if (to == ProjectionMethod::Stereographic) {
            DictionaryGuard record = PanelRecords::imported(from);
            record->setText(Key::cuttingRadius, "0");
            editor.setRecord(*record);
        }
        const QStringList before = recordText(editor.record());
        editor.setMethod(to);
        QCOMPARE(value(editor, Key::factor), factor);
        editor.setMethod(from);
        QCOMPARE(recordText(editor.record()), before);
    }

    void marksWhatItFilledIn() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(Utm));
        QCOMPARE(toChoose(editor), QStringList());
        editor.setMethod(Lambert);
        QCOMPARE(toChoose(editor), QStringList(Key::factor));
        QVERIFY(set(editor, Key::factor, "1"));
        QCOMPARE(toChoose(editor), QStringList());

        editor.setRecord(*PanelRecords::fresh());
        editor.setMethod(GaussKrueger); // whose scale factor is 1 by definition
        QCOMPARE(toChoose(editor), QStringList({Key::orgLat, Key::orgLon, Key::falseEast, Key::falseNorth}));
        QVERIFY(set(editor, Key::orgLon, "9"));
        editor.setMethod(Utm);
        QCOMPARE(toChoose(editor), QStringList({Key::orgLat, Key::factor, Key::falseEast, Key::falseNorth}));
        QCOMPARE(value(editor, Key::orgLon), "9");
    }

    void followsScaleFactor() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(GaussKrueger));
        const QList<QPair<QString, ProjectionMethod>> steps = {
            {"0.9996", Utm}, {"1", GaussKrueger}, {"1.0000", GaussKrueger}, {"1.00002", Utm}, {"x", Utm}};
        for (const auto& [text, expected] : steps) {
            set(editor, Key::factor, text);
            QCOMPARE(method(editor), expected);
            QVERIFY(coordParamDefinesProjection(editor.record()));
        }
        QCOMPARE(value(editor, Key::factor), "1.00002");
    }

    void keepsStandardParallel_data() {
        const Rows<ProjectionMethod, QString, double> row({"method", "origin", "parallel"});
        row("Mercator", Mercator, "0", 41.0);
        row("Mercator, all digits", Mercator, "0", 20.123456789012);
        row("Mercator, near the equator", Mercator, "0", 0.5);
        row("North pole", ProjectionMethod::Stereographic, "90", 71.0);
        row("South pole", ProjectionMethod::Stereographic, "-90", -71.0);
        row("plain Mercator", ProjectionMethod::Mercator, "0", 0.0);
    }

    void keepsStandardParallel() {
        QFETCH(ProjectionMethod, method);
        QFETCH(QString, origin);
        QFETCH(double, parallel);
        const QString text = QString::number(parallel, 'g', 15);
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::fresh());
        editor.setMethod(method);
        const ParamField* parallelField = ProjectionFields::find(int(method))->field(Key::cuttingRadius);
        if (method == ProjectionMethod::Stereographic) {
            QCOMPARE(parallelField->shownText(editor.record(), AngleNotation::DecimalDegrees), QString());
            QVERIFY(set(editor, Key::orgLat, origin));
        }
        if (parallelField)
            QVERIFY(set(editor, Key::cuttingRadius, text));
        const double cosine = std::cos(parallel * degree);
        QVERIFY(qAbs(number(editor, Key::cuttingRadius) - 6378137.0 * cosine) < 1e-8);

        // Another axis, typed or chosen, leaves the parallel where it is.
        const QStringList before = recordText(editor.record());
        QVERIFY(set(editor, Key::ellipsoidA, "6377397.155"));
        QCOMPARE(PanelRecords::changedKeys(before, editor.record()),
                 QStringList({Key::cuttingRadius, Key::ellipsoidA}));
        QVERIFY(qAbs(number(editor, Key::cuttingRadius) - 6377397.155 * cosine) < 1e-8);
        editor.setEllipsoid(*PanelRecords::fresh());
        QVERIFY(qAbs(number(editor, Key::cuttingRadius) - 6378137.0 * cosine) < 1e-8);
        if (parallelField)
            QCOMPARE(parallelField->shownText(editor.record(), AngleNotation::DecimalDegrees),
                     QString::number(parallel, 'g', 14));
        QVERIFY(coordParamDefinesProjection(editor.record()));

        if (method == ProjectionMethod::Stereographic) {
            QVERIFY(set(editor, Key::cuttingRadius, ""));
            QCOMPARE(number(editor, Key::cuttingRadius), 0.0);
        }
    }

    void returnsFromTyping_data() {
        // last: a text that changes, apart from the key, what depends on it
        const Rows<ProjectionMethod, QByteArray, QString, QStringList> row({"method", "key", "last", "changed"});
        row("easting", Utm, Key::falseEast, "5", {Key::falseEast});
        row("method", GaussKrueger, Key::factor, "1.2", {Key::factor, Key::projectType});
        row("radius", Mercator, Key::ellipsoidA, "6377397.155", {Key::cuttingRadius, Key::ellipsoidA});
        row("parallel", Mercator, Key::cuttingRadius, "12.5", {Key::cuttingRadius});
    }

    void returnsFromTyping() {
        QFETCH(ProjectionMethod, method);
        QFETCH(QByteArray, key);
        QFETCH(QString, last);
        QFETCH(QStringList, changed);
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(method));
        const QStringList before = recordText(editor.record());
        editor.startTyping();
        QVERIFY(type(editor, key, last));
        QCOMPARE(PanelRecords::changedKeys(before, editor.record()), changed);
        const QStringList typed = recordText(editor.record());
        QVERIFY(type(editor, key, last + 'x')); // the x leads back, and nothing after it any further
        QCOMPARE(recordText(editor.record()), before);
        QVERIFY(!editor.type(field(editor, key), FieldInput()));
        QVERIFY(!editor.cancelTyping());
        // Whatever was typed on the way, the same text gives the same record.
        QVERIFY(type(editor, key, last));
        QCOMPARE(recordText(editor.record()), typed);
        QVERIFY(editor.cancelTyping());
        QCOMPARE(recordText(editor.record()), before);
    }

    void goesBackAndForward() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(Utm));
        const QStringList before = recordText(editor.record());
        QVERIFY(!editor.canGoBack() && !editor.canGoForward());
        QVERIFY(set(editor, Key::falseEast, "1"));
        editor.setMethod(Lambert);
        editor.setShift(false);
        editor.setText(Key::geoidName, "EGM2008");
        const QStringList edited = recordText(editor.record());
        QVERIFY(editor.canGoBack() && !editor.canGoForward());

        editor.goBack();
        QCOMPARE(recordText(editor.record()), before);
        QVERIFY(!editor.canGoBack() && editor.canGoForward());
        editor.goForward();
        QCOMPARE(recordText(editor.record()), edited);
        QCOMPARE(toChoose(editor), QStringList(Key::factor));
        QVERIFY(editor.canGoBack() && !editor.canGoForward());

        // An edit after the way back is the new way forward; another record has none.
        editor.goBack();
        QVERIFY(set(editor, Key::falseEast, "2"));
        QVERIFY(!editor.canGoForward());
        editor.goBack();
        editor.goForward();
        QCOMPARE(value(editor, Key::falseEast), "2");
        editor.goBack();
        editor.setRecord(*PanelRecords::imported(Lambert));
        QVERIFY(!editor.canGoBack() && !editor.canGoForward());
    }

    void replacesValues() {
        CoordParamEditor editor;
        editor.setRecord(*PanelRecords::imported(GaussKrueger));
        const DictionaryGuard values;

        // A better scale factor makes the other method of it.
        dic_set_value(values.get(), Key::factor, "%f", 0.99987654321);
        const QStringList before = recordText(editor.record());
        editor.replaceValues(*values);
        QCOMPARE(PanelRecords::changedKeys(before, editor.record()), QStringList({Key::factor, Key::projectType}));
        QCOMPARE(number(editor, Key::factor), 0.99987654321);

        // A whole definition: the name and foreign keys stay, the shift that it lacks goes.
        dictionary_assign(values.get(), PanelRecords::imported(Lambert).get());
        for (const ParamField& field : DatumFields::shift())
            values->remove(field.key);
        dic_set_value(values.get(), Key::shiftType, "%d", 0);
        values->remove(Key::name);
        values->remove("a_key_of_another_version");
        editor.replaceValues(*values);
        QCOMPARE(value(editor, Key::name), "New");
        QVERIFY(editor.record().getValue("a_key_of_another_version"));
        QVERIFY(!editor.record().getValue(Key::shiftDx));
        QCOMPARE(value(editor, Key::projectType), "9");
        QCOMPARE(toChoose(editor), QStringList());
    }

    void reversesRotations() {
        CoordParamEditor editor;
        const DictionaryGuard record = PanelRecords::imported(Utm);
        PanelRecords::change(*record, {"_7ry=0.000", "_7rz=+0.0005"});
        editor.setRecord(*record);
        editor.reverseRotations();
        QCOMPARE(number(editor, Key::shiftRx), -5.6111111111111114e-05);
        QCOMPARE(value(editor, Key::shiftRy), "0.000");
        QCOMPARE(value(editor, Key::shiftRz), "-0.0005");
    }
};

ROOM_TEST(CoordParamEditorTest)
#include "CoordParamEditorTest.moc"
