#include "panel/record/DatumFields.h"

#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

class DatumFieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void warns_data() {
        const Rows<QByteArray> row({"said"});
        row("ellipsoid_f=298.25", "");
        row("ellipsoid_f=200", "Unusual for the Earth.");
        row("ellipsoid_f=289.9", "Unusual for the Earth.");
        row("ellipsoid_f=310.1", "Unusual for the Earth.");
        row("ellipsoid_f=0", "A sphere.");
        row("ellipsoid_a=6300000", "Unusual for the Earth.");
        row("ellipsoid_a=6377563.396", "");
        row("_7dx=-3001", "Unusually large.");
        row("_7dz=2624", "");
        row("_7ry=0.0167", "Unusually large."); // degrees: 60.1 seconds
        row("_7rx=-0.0167", "Unusually large.");
        row("_7ppm=-101", "Unusually large.");
    }

    void warns() {
        QFETCH(QByteArray, said);
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        PanelRecords::change(*record, {QTest::currentDataTag()});
        QString warnings = DatumFields::warning(DatumFields::semiMajorAxis(), *record) +
                           DatumFields::warning(DatumFields::inverseFlattening(), *record);
        for (const ParamField& field : DatumFields::shift())
            warnings += DatumFields::warning(field, *record);
        QCOMPARE(warnings, QString(said));
    }
};

ROOM_TEST(DatumFieldsTest)
#include "DatumFieldsTest.moc"
