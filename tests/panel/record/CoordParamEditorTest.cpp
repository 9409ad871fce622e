#include "panel/record/CoordParamEditor.h"

#include "import/CoordParamToProjDefine.h"
#include "panel/record/AngleText.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelRecords.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/Script.h"

#include <QTest>

#include <cmath>

namespace Key = CoordParamKey;

namespace {

constexpr double degree = 3.141592653589793 / 180;
constexpr auto Utm = ProjectionMethod::TransverseMercatorScaled;

QByteArray value(const CoordParamEditor& editor, const char* key) {
    return editor.record().getValue(key);
}

double number(const CoordParamEditor& editor, const char* key) {
    return dictionary_number(editor.record(), key, qQNaN());
}

/// The field of the record's method, or of the ellipsoid, that reads and writes `key`.
const ParamField& field(const CoordParamEditor& editor, const char* key) {
    for (const ParamField* field : {&DatumFields::semiMajorAxis(), &DatumFields::inverseFlattening()}) {
        if (field->is(key))
            return *field;
    }
    return *ProjectionFields::ofRecord(editor.record())->field(key);
}

QStringList toChoose(const CoordParamEditor& editor) {
    QStringList keys;
    for (const ParamField& field : ProjectionFields::ofRecord(editor.record())->fields) {
        if (editor.isToChoose(field))
            keys << field.key;
    }
    return keys;
}

/// Starts with a record as of PanelRecords::of().
///   done: "key=text" puts into the key's field, "type key=text" does so after every character, "method=9", ...
///   seen: "key" is the record's text, "changed" keys since the record was set or the "mark", what the "last" character
///         did, ...
class EditorScript : public Script {
public:
    explicit EditorScript(const QString& start) {
        acts["record"] = [this](const QString& text) {
            editor.setRecord(*PanelRecords::of(text));
            acts["mark"](QString());
        };
        acts["mark"] = [this](const QString&) { before = recordText(editor.record()); };
        acts["method"] = [this](const QString& text) { editor.setMethod(ProjectionMethod(text.toInt())); };
        acts["ellipsoid"] = [this](const QString& text) { editor.setEllipsoid(*PanelRecords::of(text)); };
        acts["no shift"] = [this](const QString&) { editor.setShift(false); };
        acts["geoid"] = [this](const QString& text) { editor.setText(Key::geoidName, text); };
        acts["reverse rotations"] = [this](const QString&) { editor.reverseRotations(); };
        acts["start typing"] = [this](const QString&) { editor.startTyping(); };
        acts["cancel"] = [this](const QString&) { isChanged = editor.cancelTyping(); };
        acts["replace"] = [this](const QString& text) { editor.replaceValues(*PanelRecords::of(text)); };
        acts["replace factor"] = [this](const QString& text) {
            const DictionaryGuard values;
            dic_set_value(values.get(), Key::factor, "%f", text.toDouble());
            editor.replaceValues(*values);
        };
        acts["back"] = [this](const QString&) { editor.goBack(); };
        acts["forward"] = [this](const QString&) { editor.goForward(); };
        sights["changed"] = [this](const QString&) {
            return PanelRecords::changedKeys(before, editor.record()).join(' ');
        };
        sights["last"] = [this](const QString&) { return isChanged ? "changed" : "nothing"; };
        sights["number"] = [this](const QString& key) {
            return QString::number(number(editor, key.toLatin1()), 'g', QLocale::FloatingPointShortest);
        };
        sights["shown"] = [this](const QString& key) {
            return field(editor, key.toLatin1()).shownText(editor.record(), AngleNotation::DecimalDegrees);
        };
        // The radius of a parallel is a cos φ.
        sights["parallel"] = [this](const QString&) {
            const double cosine = number(editor, Key::cuttingRadius) / number(editor, Key::ellipsoidA);
            return QString::number(std::acos(cosine) / degree, 'f', 12);
        };
        sights["to choose"] = [this](const QString&) { return toChoose(editor).join(' '); };
        sights["way"] = [this](const QString&) {
            return QString(editor.canGoBack() ? "back" : "") + (editor.canGoForward() ? "forward" : "");
        };
        sights["defines"] = [this](const QString&) {
            return coordParamDefinesProjection(editor.record()) ? "a projection" : "none";
        };
        acts["record"](start);
    }

protected:
    void act(const QString& word, const QString& text) override {
        if (acts.contains(word))
            return Script::act(word, text);
        const ParamField& typed = field(editor, word.section(' ', -1).toLatin1());
        if (!word.startsWith("type "))
            editor.setField(typed, typed.parse(text));
        else
            for (int length = 1; length <= text.size(); ++length)
                isChanged = editor.type(typed, typed.parse(text.left(length)));
    }

    QString see(const QString& what) override {
        return sights.contains(what.section(':', 0, 0)) ? Script::see(what) : value(editor, what.toLatin1());
    }

private:
    CoordParamEditor editor;
    QStringList before;
    bool isChanged = false;
};

} // namespace

class CoordParamEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"editor.txt"}); }

    void script() {
        QFETCH(QString, start);
        EditorScript(start).play();
    }

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
};

ROOM_TEST(CoordParamEditorTest)
#include "CoordParamEditorTest.moc"
