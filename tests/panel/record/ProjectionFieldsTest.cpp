#include "panel/record/ProjectionFields.h"

#include "import/CoordParamToProjDefine.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

namespace Key = CoordParamKey;

class ProjectionFieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areWhatDefinesTheMethod_data() {
        const Rows<ProjectionMethod> row({"method"});
        for (const ProjectionFields& projection : ProjectionFields::all())
            row(projection.name, projection.method);
    }

    /// The keys that the method's fields write are those that make its definition, and no others.
    void areWhatDefinesTheMethod() {
        QFETCH(ProjectionMethod, method);
        const DictionaryGuard record = PanelRecords::imported(method);
        if (method == ProjectionMethod::Stereographic)
            PanelRecords::change(*record, {"org_lat=90", "factor=1"});
        const QByteArray before = coordParamToProjDefine(*record);
        QVERIFY(!before.isEmpty());
        for (const char* key :
             {Key::orgLon, Key::orgLat, Key::falseNorth, Key::falseEast, Key::factor, Key::cuttingRadius,
              Key::parallel1Lat, Key::parallel2Lat, Key::azimuth, Key::lon1, Key::lat1, Key::lon2, Key::lat2}) {
            DictionaryGuard other;
            dictionary_assign(other.get(), record.get());
            dic_set_value(other.get(), key, "%f", dictionary_number(*record, key, 0) * 0.99 + 0.001);
            QVERIFY2((coordParamToProjDefine(*other) != before) ==
                         (ProjectionFields::ofRecord(*record)->field(key) != nullptr),
                     key);
        }
    }
};

ROOM_TEST(ProjectionFieldsTest)
#include "ProjectionFieldsTest.moc"
