#include "panel/check/FitBox.h"

#include "panel/computing/ShownSystem.h"
#include "panel/record/LengthUnit.h"
#include "support/OnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {

/// The box on a record of PanelRecords::of(). A script starts with "record" or "read-only: record".
///   done: "points=record" shows five points as that record's system has them, "none" none
///         "unit=ft" of lengths
///   seen: "accepted", how often; "left at:1", the easting at a row of the table
class FitBoxOnScreen : public OnScreen {
public:
    explicit FitBoxOnScreen(const QString& start)
        : system(ShownSystem::of(*PanelRecords::of(start.section(": ", -1)), nullptr))
        , box(start.startsWith("read-only"))
        , accepted(&box, SIGNAL(accepted())) {
        box.resize(640, 200);
        open(box);
        acts["points"] = [this](const QString& record) {
            const auto given = ShownSystem::of(*PanelRecords::of(record), nullptr);
            points.clear();
            for (const GridPoint& place : {GridPoint{5, 52}, {5.1, 52.2}, {5.3, 52.1}, {5.8, 52.4}, {5.4, 51.5}}) {
                const GeographicPoint own{place.northing, place.easting, 0.0};
                points << KnownPoint{own, *given->projection()->toGrid(own), std::size_t(points.size() + 1)};
            }
            box.setPoints(system, points);
        };
        acts["unit"] = [this](const QString& unit) {
            LengthUnit::choose(unit == "ft" ? LengthUnit::InternationalFoot : LengthUnit::Metre);
            box.setPoints(system, points);
        };
        sights["left at"] = [this](const QString& row) {
            const double easting = box.residuals(7).at(row.toUInt()).easting;
            return std::isnan(easting) ? "none" : LengthUnit::text(easting);
        };
        acts["none"] = [this](const QString&) { box.setPoints(system, {}); };
        sights["accepted"] = [this](const QString&) { return QString::number(accepted.count()); };
    }

    ~FitBoxOnScreen() override { LengthUnit::choose(LengthUnit::Metre); }

private:
    std::shared_ptr<const ShownSystem> system;
    FitBox box;
    QVector<KnownPoint> points;
    QSignalSpy accepted;
};

} // namespace

class FitBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"fit.txt"}); }

    void script() {
        QFETCH(QString, start);
        FitBoxOnScreen(start).play();
    }
};

ROOM_TEST(FitBoxTest)
#include "FitBoxTest.moc"
