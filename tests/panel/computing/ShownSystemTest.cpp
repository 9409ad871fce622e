#include "panel/computing/ShownSystem.h"

#include "catalogue/CoordParamKey.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

class ShownSystemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noProjection_data() {
        const Rows<SampleRecord> row({"sample"});
        row("type 0 with factor 0", SampleRecord::named("Gauss-Kruger").with("factor", "0"));
        row("unknown type", SampleRecord::named("UTM").with("project_type", "5"));
        row("no ellipsoid", SampleRecord::named("UTM").with("ellipsoid_a", "0"));
        row("parallels cancel",
            SampleRecord::named("Lambert two parallels").with("parallel_1_lat", "-30.2833333333333"));
        row("centre at the pole", SampleRecord::named("Oblique Mercator").with("org_lat", "90"));
        row("line far from the centre", SampleRecord::named("Oblique Mercator two points").with("org_lat", "80"));
        row("polar with both scale and parallel", SampleRecord::named("Polar with parallel").with("factor", "0.994"));
    }

    /// It says why, and so does the next one with an earlier system's projection at hand.
    void noProjection() {
        QFETCH(SampleRecord, sample);
        const auto good = ShownSystem::of(*SampleRecord::named("UTM").record(), nullptr);
        const auto system = ShownSystem::of(*sample.record(), good.get());
        QVERIFY(!system->projection() && !system->problem().isEmpty());
        QVERIFY(good->projection() && good->problem().isEmpty());
        QVERIFY(ShownSystem::of(*SampleRecord::named("UTM").record(), system.get())->projection());
    }

    /// It stays as it was, whatever becomes of the record and of earlier systems.
    void keepsWhatItHolds() {
        const DictionaryGuard record = SampleRecord::named("UTM").record();
        auto first = ShownSystem::of(*record, nullptr);
        record->setText(CoordParamKey::name, "other");
        const auto renamed = ShownSystem::of(*record, first.get());
        QCOMPARE(first->name(), QString("UTM"));
        QCOMPARE(renamed->name(), QString("other"));
        QCOMPARE(renamed->projection(), first->projection());
        first.reset();
        QVERIFY(renamed->projection()->toGrid({1.0, 15.0, 0.0}));
        record->setText(CoordParamKey::falseEast, "0");
        const auto moved = ShownSystem::of(*record, renamed.get());
        QCOMPARE(moved->projection()->toGrid({0.0, 15.0, 0.0})->easting, 0.0);
    }
};

ROOM_TEST(ShownSystemTest)
#include "ShownSystemTest.moc"
