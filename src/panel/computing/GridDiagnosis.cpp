#include "panel/computing/GridDiagnosis.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/computing/DesignProposal.h"
#include "panel/computing/GridAdjustment.h"
#include "panel/computing/PlaneSimilarity.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"

#include <cmath>

namespace Key = CoordParamKey;

namespace {

/// The quarters of a turn, counter-clockwise, nearest to a similarity's rotation: 0 to 3.
int quartersOf(const PlaneSimilarity& similarity) {
    return (int(std::lround(similarity.rotation() / 90.0)) + 4) % 4;
}

} // namespace

GridDiagnosis::GridDiagnosis(const IDictionary& record, IProjectionModule& module, const QVector<GridPoint>& computed,
                             const QVector<KnownPoint>& points)
    : record(record), module(module), points(points) {
    QVector<GridPoint> given, swapped;
    for (const KnownPoint& point : points) {
        given.append(point.grid);
        swapped.append({point.grid.northing, point.grid.easting});
    }
    const auto straight = PlaneSimilarity::between(computed, given);
    const auto mirrored = PlaneSimilarity::between(computed, swapped);
    if (!straight || !mirrored)
        return;
    constexpr double clearlyBetter = 0.1;
    const bool isClear = mirrored->misfit() < clearlyBetter * straight->misfit() ||
                         straight->misfit() < clearlyBetter * mirrored->misfit();
    // Points on a line fit both ways: swapped axes are likelier than one of them swapped and turned.
    isMirrored =
        isClear ? mirrored->misfit() < straight->misfit() : quartersOf(*straight) != 0 && quartersOf(*mirrored) == 0;
    const PlaneSimilarity& fit = isMirrored ? *mirrored : *straight;
    constexpr double looseFit = 0.05; // the places are not of the same points then
    if (fit.misfit() > looseFit)
        return;
    quarters = quartersOf(fit);
    sayAxes();
    sayUnit(fit.scale());
    sayMeridian(fit);
}

void GridDiagnosis::sayAxes() {
    const QString east = PanelText::tr("east"), north = PanelText::tr("north"), west = PanelText::tr("west"),
                  south = PanelText::tr("south");
    const QString directions[2][4][2] = {{{east, north}, {south, east}, {west, south}, {north, west}},
                                         {{north, east}, {east, south}, {south, west}, {west, north}}};
    const auto& axes = directions[isMirrored ? 1 : 0][quarters];
    if (isMirrored && quarters == 0)
        sentences << PanelText::tr("Easting and northing are swapped.");
    else if (isMirrored || quarters != 0)
        sentences << PanelText::tr("The given eastings count %1, the northings %2.").arg(axes[0], axes[1]);
}

void GridDiagnosis::sayUnit(double scale) {
    constexpr double foot = 0.3048;
    const auto isAbout = [&](double expected) { return std::abs(scale / expected - 1.0) < 0.01; };
    if (isAbout(1.0 / foot)) {
        unit = foot;
        sentences << PanelText::tr("The given eastings and northings are in feet.");
    } else if (isAbout(foot)) {
        unit = 1.0 / foot;
        sentences << PanelText::tr("The given eastings and northings are metres that were taken for feet.");
    }
}

/// The given points as the record's system counts them.
QVector<KnownPoint> GridDiagnosis::inOrder() const {
    QVector<KnownPoint> ordered = points;
    for (KnownPoint& point : ordered) {
        GridPoint& grid = point.grid;
        if (isMirrored)
            grid = {grid.northing, grid.easting};
        for (int i = 0; i < quarters; ++i)
            grid = {grid.northing, -grid.easting}; // a quarter back, clockwise
        grid = {grid.easting * unit, grid.northing * unit};
    }
    return ordered;
}

void GridDiagnosis::sayMeridian(const PlaneSimilarity& fit) {
    constexpr double smallest = 0.005; // degrees: a survey's own orientation may be the reason of less
    const double rotation = std::remainder(fit.rotation(), 90.0);
    if (std::abs(rotation) < smallest || std::abs(rotation) < 5.0 * fit.rotationDeviation())
        return;
    const QString turned =
        PanelText::tr("The given grid is turned by %1° against the computed one").arg(rotation, 0, 'f', 4);
    const ProjectionFields& method = *ProjectionFields::ofRecord(record);
    const ParamField* const meridian = method.field(Key::orgLon);
    QVector<const ParamField*> fields;
    for (const char* key : {Key::orgLon, Key::factor, Key::falseEast, Key::falseNorth}) {
        const ParamField* const field = method.field(key);
        if (field && (!field->is(Key::factor) || DesignProposal::isPossible(record)))
            fields.append(field);
    }
    const QVector<KnownPoint> ordered = inOrder();
    GridAdjustment adjustment(record, module, ordered);
    const auto solution = meridian ? adjustment.estimate(fields) : std::nullopt;
    if (!solution) {
        sentences << turned + '.';
        return;
    }
    const double longitude = dictionary_number(adjustment.record(), meridian->key, 0.0);
    const double deviation = std::isnan(solution->deviation(0)) ? 0.0 : solution->deviation(0);
    const double zone = std::round(longitude * 2.0) / 2.0;
    // A zone's meridian is a whole degree or a half, to be told from others by points as good as these.
    const bool isZone = deviation < 0.05 && std::abs(longitude - zone) < std::max(0.001, 3.0 * deviation);
    sentences << (isZone ? PanelText::tr("The points are of another zone: its central meridian is %1°.").arg(zone)
                         : PanelText::tr("%1, as by a central meridian of %2°.").arg(turned).arg(longitude, 0, 'f', 4));
}
