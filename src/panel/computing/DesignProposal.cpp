#include "panel/computing/DesignProposal.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/NumberText.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using namespace CoordParamKey;

void put(CoordParamEditor& editor, const ParamField& field, double value) {
    editor.setField(field, field.parse(NumberText::shortest(value)));
}

double rounded(double value, int decimals) {
    return QString::number(value, 'f', decimals).toDouble();
}

/// What the area's points say of one candidate.
class Trial {
public:
    Trial(IProjectionModule& module, const QVector<GeographicPoint>& points, double height)
        : module(module), points(points), height(height) {}

    /// Smallest and largest k * R / (R + h) of the system that `record` defines.
    std::optional<DesignProposal::Range> scales(const IDictionary& record) const {
        const auto system = module.createSystem(coordParamToProjDefine(record));
        if (!system)
            return std::nullopt;
        DesignProposal::Range range{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
        for (const GeographicPoint& point : points) {
            const auto scale = system->localScale(point);
            if (!scale)
                return std::nullopt;
            const double combined = scale->mean * system->elevationFactor(point.latitude, height);
            range.smallest = std::min(range.smallest, combined);
            range.largest = std::max(range.largest, combined);
        }
        return range;
    }

    std::optional<DesignProposal::Range> ppm(const IDictionary& record) const {
        auto range = scales(record);
        if (range)
            range = DesignProposal::Range{(range->smallest - 1.0) * 1e6, (range->largest - 1.0) * 1e6};
        return range;
    }

    /// The distortion that the best scale factor leaves, relative to it; infinite where there is no result.
    double spread(const IDictionary& record) const {
        const auto range = scales(record);
        return range ? (range->largest - range->smallest) / (range->largest + range->smallest)
                     : std::numeric_limits<double>::infinity();
    }

private:
    IProjectionModule& module;
    const QVector<GeographicPoint>& points;
    double height;
};

/// The range of the points' latitudes or, around the present line, longitudes.
DesignProposal::Range lineRange(const QVector<GeographicPoint>& points, const ParamField& line, double present) {
    DesignProposal::Range range{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const GeographicPoint& point : points) {
        const double value = line.quantity == Quantity::Longitude
                                 ? present + std::remainder(point.longitude - present, 360.0)
                                 : point.latitude;
        range.smallest = std::min(range.smallest, value);
        range.largest = std::max(range.largest, value);
    }
    return range;
}

/// Moves the line of `editor`'s record to where the area's scales differ least.
void placeBestLine(CoordParamEditor& editor, const ParamField& line, const QVector<GeographicPoint>& points,
                   const Trial& trial) {
    const DesignProposal::Range range = lineRange(points, line, dictionary_number(editor.record(), line.key, 0.0));
    const auto spreadAt = [&](double value) {
        put(editor, line, value);
        return trial.spread(editor.record());
    };
    const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
    double low = range.smallest, high = range.largest;
    double inner = high - ratio * (high - low), outer = low + ratio * (high - low);
    double innerSpread = spreadAt(inner), outerSpread = spreadAt(outer);
    while (high - low > 1e-5) {
        if (innerSpread < outerSpread) {
            high = outer;
            outer = inner;
            outerSpread = innerSpread;
            inner = high - ratio * (high - low);
            innerSpread = spreadAt(inner);
        } else {
            low = inner;
            inner = outer;
            innerSpread = outerSpread;
            outer = low + ratio * (high - low);
            outerSpread = spreadAt(outer);
        }
    }
    double best = rounded((low + high) / 2.0, range.largest - range.smallest < 1.0 ? 4 : 2);
    if (line.quantity == Quantity::Longitude)
        best = rounded(std::remainder(best, 360.0), 4);
    put(editor, line, best);
}

} // namespace

bool DesignProposal::isPossible(const IDictionary& record) {
    const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
    if (!projection || !projection->field(factor))
        return false;
    return projection->method != ProjectionMethod::Stereographic || !StandardParallel::ofRecord(record);
}

const ParamField* DesignProposal::lineField(const IDictionary& record) {
    const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
    if (!projection)
        return nullptr;
    switch (projection->method) {
    case ProjectionMethod::TransverseMercator:
    case ProjectionMethod::TransverseMercatorScaled:
        return projection->field(orgLon);
    case ProjectionMethod::LambertOneParallel:
        return projection->field(parallel1Lat);
    default:
        return nullptr;
    }
}

std::optional<DesignProposal> DesignProposal::make(const IDictionary& record, IProjectionModule& module,
                                                   const QVector<GeographicPoint>& points, double height,
                                                   bool placeLine) {
    const Trial trial(module, points, height);
    const auto before = trial.ppm(record);
    if (!isPossible(record) || points.isEmpty() || !before)
        return std::nullopt;
    CoordParamEditor editor;
    editor.setRecord(record);
    const ParamField* const line = placeLine ? lineField(record) : nullptr;
    if (line)
        placeBestLine(editor, *line, points, trial);
    const ProjectionFields& projection = *ProjectionFields::ofRecord(record);
    // A cone that starts on its parallel goes on doing so.
    if (line && projection.method == ProjectionMethod::LambertOneParallel &&
        dictionary_number(record, orgLat, 0.0) == dictionary_number(record, parallel1Lat, 1.0))
        put(editor, *projection.field(orgLat), dictionary_number(editor.record(), parallel1Lat, 0.0));

    const auto range = trial.scales(editor.record());
    if (!range)
        return std::nullopt;
    const double present = dictionary_number(record, factor, 1.0);
    put(editor, *projection.field(factor), rounded(2.0 * present / (range->smallest + range->largest), 7));
    const auto after = trial.ppm(editor.record());
    if (!after)
        return std::nullopt;

    DesignProposal proposal;
    proposal.rangeBefore = *before;
    proposal.rangeAfter = *after;
    for (const ParamField& field : projection.fields) {
        const double old = dictionary_number(record, field.key, 0.0);
        const double proposed = dictionary_number(editor.record(), field.key, 0.0);
        if (old != proposed)
            proposal.changedValues.append({&field, old, proposed});
    }
    return proposal;
}

void DesignProposal::apply(CoordParamEditor& editor) const {
    for (const Change& change : changedValues)
        put(editor, *change.field, change.after);
}
