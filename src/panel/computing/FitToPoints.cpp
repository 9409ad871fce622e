#include "panel/computing/FitToPoints.h"

#include "catalogue/CoordParamKey.h"
#include "panel/computing/DesignProposal.h"
#include "panel/computing/GridAdjustment.h"
#include "panel/computing/GridDiagnosis.h"
#include "panel/computing/PlaneSimilarity.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"

#include <cmath>

namespace Key = CoordParamKey;

namespace {

int decimalsOf(const ParamField& field) {
    return field.isAngle() ? 8 : field.quantity == Quantity::ScaleFactor ? 9 : 4;
}

std::optional<FitToPoints::Remainder> remainderOf(const QVector<GridPoint>& computed,
                                                  const QVector<KnownPoint>& points) {
    QVector<GridPoint> given;
    for (const KnownPoint& point : points)
        given.append(point.grid);
    const auto fit = PlaneSimilarity::between(computed, given);
    if (!fit)
        return std::nullopt;
    return FitToPoints::Remainder{fit->rotation(), fit->rotationDeviation(), (fit->scale() - 1.0) * 1e6,
                                  fit->scaleDeviation() * 1e6};
}

} // namespace

double FitToPoints::rms(const QVector<GridPoint>& residuals) {
    double sum = 0.0;
    for (const GridPoint& residual : residuals)
        sum += residual.easting * residual.easting + residual.northing * residual.northing;
    return residuals.isEmpty() ? 0.0 : std::sqrt(sum / double(residuals.size()));
}

FitToPoints FitToPoints::solve(const IDictionary& record, IProjectionModule& module, const QVector<KnownPoint>& points,
                               const Choice& choice) {
    FitToPoints result;
    if (points.isEmpty()) {
        result.reason = PanelText::tr("A fit needs points with latitude, longitude, easting and northing.");
        return result;
    }
    if (points.size() > mostPoints) {
        result.reason = PanelText::tr("A fit takes %1 points at most: leave some out.").arg(mostPoints);
        return result;
    }
    GridAdjustment adjustment(record, module, points);
    const auto computed = adjustment.computed();
    if (!computed) {
        result.reason = PanelText::tr("The projection gives no result at one of the points.");
        return result;
    }
    result.before = result.after = *adjustment.residuals();
    result.remaining = remainderOf(*computed, points);
    result.findings = GridDiagnosis(record, module, *computed, points).text();

    const ProjectionFields& method = *ProjectionFields::ofRecord(record);
    QVector<const ParamField*> fields;
    const auto add = [&](bool isChosen, const ParamField* field) {
        if (isChosen && field)
            fields.append(field);
    };
    // From what others follow to what follows, as they are rounded.
    add(choice.line, DesignProposal::lineField(record));
    add(choice.factor && DesignProposal::isPossible(record), method.field(Key::factor));
    add(choice.falseEasting, method.field(Key::falseEast));
    add(choice.falseNorthing, method.field(Key::falseNorth));
    if (fields.isEmpty())
        return result;

    const auto solution = adjustment.estimate(fields);
    if (!solution) {
        result.reason = PanelText::tr("The points do not determine these values: hold one of them, or add points.");
        return result;
    }
    result.weight = solution->unitWeight();
    for (QVector<const ParamField*> open = fields; !open.isEmpty();) {
        const ParamField* const field = open.takeFirst();
        adjustment.round(*field, decimalsOf(*field));
        // The other values make up for what the rounding costs.
        if (!open.isEmpty())
            adjustment.estimate(open);
    }
    for (int i = 0; i < fields.size(); ++i)
        result.changedValues.append(
            {fields[i], fields[i]->number(record), fields[i]->number(adjustment.record()), solution->deviation(i)});
    result.after = *adjustment.residuals();
    result.remaining = remainderOf(*adjustment.computed(), points);
    return result;
}

void FitToPoints::apply(CoordParamEditor& editor) const {
    // The record took these values before.
    for (const Change& change : changedValues)
        (void)GridAdjustment::put(editor, *change.field, change.after);
}
