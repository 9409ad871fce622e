#include "panel/computing/DesignProposal.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/NumberText.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <limits>

namespace Key = CoordParamKey;

namespace {

constexpr double roundingOfFactor = 0.05; ///< ppm: half of the seventh decimal

/// Puts a value into the editor's record, a longitude within -180 to 180; false when the field refuses it.
[[nodiscard]] bool put(CoordParamEditor& editor, const ParamField& field, double value) {
    const bool isLongitude = field.quantity == Quantity::Longitude;
    const FieldInput input = field.parse(NumberText::shortest(isLongitude ? std::remainder(value, 360.0) : value));
    editor.setField(field, input);
    return input.valid;
}

double rounded(double value, int decimals) {
    return QString::number(value, 'f', decimals).toDouble();
}

/// The least and the greatest of some values.
struct Bounds {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;

    void add(double value) {
        least = std::min(least, value);
        greatest = std::max(greatest, value);
    }
};

/// What the area's points say of one candidate.
class Trial {
public:
    Trial(IProjectionModule& module, const QVector<GeographicPoint>& points, double height)
        : module(module), points(points), height(height) {}

    /// The bounds of k * R / (R + h) in the system that `record` defines.
    std::optional<Bounds> factors(const IDictionary& record) const {
        const auto system = module.createSystem(coordParamToProjDefine(record));
        if (!system)
            return std::nullopt;
        Bounds factors;
        for (const GeographicPoint& point : points) {
            const auto scale = system->localScale(point);
            if (!scale)
                return std::nullopt;
            factors.add(scale->mean * system->elevationFactor(point.latitude, height));
        }
        return factors;
    }

    std::optional<DesignProposal::Distortion> distortion(const IDictionary& record) const {
        const auto bounds = factors(record);
        if (!bounds)
            return std::nullopt;
        return DesignProposal::Distortion{(bounds->least - 1.0) * 1e6, (bounds->greatest - 1.0) * 1e6};
    }

    /// The distortion that the best scale factor leaves, relative to it; infinite where there is no result.
    double spread(const IDictionary& record) const {
        const auto bounds = factors(record);
        return bounds ? (bounds->greatest - bounds->least) / (bounds->greatest + bounds->least)
                      : std::numeric_limits<double>::infinity();
    }

    /// The bounds in degrees of the points' latitudes or longitudes, which go on beyond 180 where the area does.
    Bounds degrees(const ParamField& line) const {
        const double start = points.first().longitude;
        Bounds degrees;
        for (const GeographicPoint& point : points)
            degrees.add(line.quantity == Quantity::Longitude ? start + std::remainder(point.longitude - start, 360.0)
                                                             : point.latitude);
        return degrees;
    }

private:
    IProjectionModule& module;
    const QVector<GeographicPoint>& points;
    double height;
};

/// Moves the line of `editor`'s record to where the area's factors differ least; false when its field refuses that.
bool placeBestLine(CoordParamEditor& editor, const ParamField& line, const Trial& trial) {
    const double present = dictionary_number(editor.record(), line.key, 0.0);
    const bool startsOnParallel =
        line.is(Key::parallel1Lat) && dictionary_number(editor.record(), Key::orgLat, 0.0) == present;
    const Bounds degrees = trial.degrees(line);
    const auto spreadAt = [&](double value) {
        return put(editor, line, value) ? trial.spread(editor.record()) : std::numeric_limits<double>::infinity();
    };
    const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
    double low = degrees.least, high = degrees.greatest;
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
    const double best = rounded((low + high) / 2.0, degrees.greatest - degrees.least < 1.0 ? 4 : 2);
    // A cone that starts on its parallel goes on doing so.
    return put(editor, line, best) &&
           (!startsOnParallel || put(editor, *ProjectionFields::ofRecord(editor.record())->field(Key::orgLat), best));
}

/// Gives `editor`'s record the best factor; the distortion that is left, or nothing where there is no result or the
/// factor is none.
std::optional<DesignProposal::Distortion> putBestFactor(CoordParamEditor& editor, const Trial& trial) {
    const auto bounds = trial.factors(editor.record());
    if (!bounds)
        return std::nullopt;
    const double present = dictionary_number(editor.record(), Key::factor, 1.0);
    const double best = rounded(2.0 * present / (bounds->least + bounds->greatest), 7);
    if (!put(editor, *ProjectionFields::ofRecord(editor.record())->field(Key::factor), best))
        return std::nullopt;
    return trial.distortion(editor.record());
}

/// The method's values that differ.
QVector<DesignProposal::Change> difference(const IDictionary& before, const IDictionary& after) {
    QVector<DesignProposal::Change> changes;
    for (const ParamField& field : ProjectionFields::ofRecord(before)->fields) {
        const double old = dictionary_number(before, field.key, 0.0);
        const double proposed = dictionary_number(after, field.key, 0.0);
        if (old != proposed)
            changes.append({&field, old, proposed});
    }
    return changes;
}

} // namespace

bool DesignProposal::isPossible(const IDictionary& record) {
    const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
    if (!projection || !projection->field(Key::factor))
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
        return projection->field(Key::orgLon);
    case ProjectionMethod::LambertOneParallel:
        return projection->field(Key::parallel1Lat);
    default:
        return nullptr;
    }
}

std::optional<DesignProposal> DesignProposal::make(const IDictionary& record, IProjectionModule& module,
                                                   const QVector<GeographicPoint>& points, double height,
                                                   bool placeLine) {
    const Trial trial(module, points, height);
    DesignProposal proposal;
    const auto before = trial.distortion(record);
    if (!isPossible(record) || points.isEmpty() || !before)
        return std::nullopt;
    proposal.distortionBefore = proposal.distortionAfter = *before;

    const auto consider = [&](const ParamField* line) {
        CoordParamEditor editor;
        editor.setRecord(record);
        if (line && !placeBestLine(editor, *line, trial))
            return;
        const bool isSameLine =
            line && dictionary_number(editor.record(), line->key, 0.0) == dictionary_number(record, line->key, 0.0);
        const auto after = putBestFactor(editor, trial);
        if (!after || isSameLine)
            return;
        // At one point the factor does it all; the line goes through it for the sake of what is around.
        const bool isThroughPoint = line && points.size() == 1;
        if (!isThroughPoint && proposal.distortionAfter.extreme() - after->extreme() < roundingOfFactor)
            return;
        proposal.distortionAfter = *after;
        proposal.changedValues = difference(record, editor.record());
    };
    consider(nullptr);
    // A line has to be worth its change.
    if (const ParamField* const line = placeLine ? lineField(record) : nullptr)
        consider(line);
    return proposal;
}

void DesignProposal::apply(CoordParamEditor& editor) const {
    for (const Change& change : changedValues) {
        const bool taken = put(editor, *change.field, change.after);
        Q_ASSERT(taken); // as it was when it was proposed
        Q_UNUSED(taken)
    }
}
