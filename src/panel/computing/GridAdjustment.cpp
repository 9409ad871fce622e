#include "panel/computing/GridAdjustment.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/record/NumberText.h"
#include "panel/record/ProjectionFields.h"
#include "platform/projection/IProjectionModule.h"

#include <cmath>

namespace Key = CoordParamKey;

namespace {

using Eigen::MatrixXd;
using Eigen::VectorXd;

} // namespace

GridAdjustment::GridAdjustment(const IDictionary& record, IProjectionModule& module, const QVector<KnownPoint>& points)
    : module(module), points(points) {
    editor.setRecord(record);
}

std::optional<QVector<GridPoint>> GridAdjustment::computed() const {
    const auto system = module.createSystem(coordParamToProjDefine(record()));
    if (!system)
        return std::nullopt;
    QVector<GridPoint> grid;
    for (const KnownPoint& point : points) {
        const auto place = system->toGrid(point.own);
        if (!place)
            return std::nullopt;
        grid.append(*place);
    }
    return grid;
}

std::optional<QVector<GridPoint>> GridAdjustment::residuals() const {
    auto grid = computed();
    for (int i = 0; grid && i < points.size(); ++i)
        (*grid)[i] = {(*grid)[i].easting - points[i].grid.easting, (*grid)[i].northing - points[i].grid.northing};
    return grid;
}

std::optional<LeastSquares> GridAdjustment::estimate(const QVector<const ParamField*>& fields) {
    constexpr int mostSteps = 30;
    constexpr double still = 1e-6; // metres
    for (int step = 0; step < mostSteps; ++step) {
        const auto left = residuals();
        const auto design = left ? derivatives(fields) : std::nullopt;
        if (!design)
            return std::nullopt;
        VectorXd misfits(2 * points.size());
        for (int i = 0; i < points.size(); ++i) {
            const Eigen::Index row = Eigen::Index(2) * i;
            misfits(row) = -(*left)[i].easting;
            misfits(row + 1) = -(*left)[i].northing;
        }
        LeastSquares solution = LeastSquares::solve(*design, misfits);
        if (!solution.isDetermined())
            return std::nullopt;
        if ((*design * solution.values).lpNorm<Eigen::Infinity>() < still)
            return solution;
        for (int i = 0; i < fields.size(); ++i) {
            if (!put(editor, *fields[i], fields[i]->number(record()) + solution.values(i)))
                return std::nullopt;
        }
    }
    return std::nullopt;
}

void GridAdjustment::round(const ParamField& field, int decimals) {
    // What a field takes, it takes rounded: its ends have fewer decimals.
    (void)put(editor, field, QString::number(field.number(record()), 'f', decimals).toDouble());
}

bool GridAdjustment::put(CoordParamEditor& editor, const ParamField& field, double value) {
    const IDictionary& record = editor.record();
    const ParamField* const origin = ProjectionFields::ofRecord(record)->field(Key::orgLat);
    const bool startsOnParallel =
        field.is(Key::parallel1Lat) && origin && origin->number(record) == field.number(record);
    const bool isLongitude = field.quantity == Quantity::Longitude;
    const QString text = NumberText::shortest(isLongitude ? std::remainder(value, 360.0) : value);
    const FieldInput input = field.parse(text);
    editor.setField(field, input);
    if (input.valid && startsOnParallel)
        editor.setField(*origin, origin->parse(text));
    return input.valid;
}

std::optional<MatrixXd> GridAdjustment::derivatives(const QVector<const ParamField*>& fields) {
    const auto grid = computed();
    MatrixXd design(2 * points.size(), fields.size());
    for (int column = 0; grid && column < fields.size(); ++column) {
        const ParamField& field = *fields[column];
        const auto slopes = slopesOf(field, *grid);
        if (!slopes)
            return std::nullopt;
        for (int i = 0; i < points.size(); ++i) {
            const Eigen::Index row = Eigen::Index(2) * i;
            design(row, column) = (*slopes)[i].easting;
            design(row + 1, column) = (*slopes)[i].northing;
        }
    }
    return grid ? std::optional<MatrixXd>(design) : std::nullopt;
}

std::optional<QVector<GridPoint>> GridAdjustment::slopesOf(const ParamField& field, const QVector<GridPoint>& grid) {
    if (field.is(Key::falseEast))
        return QVector<GridPoint>(points.size(), {1.0, 0.0});
    if (field.is(Key::falseNorth))
        return QVector<GridPoint>(points.size(), {0.0, 1.0});
    if (field.is(Key::factor)) {
        const double east = dictionary_number(record(), Key::falseEast, 0.0);
        const double north = dictionary_number(record(), Key::falseNorth, 0.0);
        const double factor = field.number(record());
        QVector<GridPoint> slopes;
        for (const GridPoint& point : grid)
            slopes.append({(point.easting - east) / factor, (point.northing - north) / factor});
        return slopes;
    }
    // The line: by central differences, whose error here is that of the third derivative, below 1e-9 of the slope.
    constexpr double step = 1e-4; // degrees
    CoordParamEditor present;
    present.setRecord(record());
    const auto at = [&](double change) {
        const bool isMoved = put(editor, field, field.number(record()) + change);
        auto moved = isMoved ? computed() : std::nullopt;
        editor.setRecord(present.record());
        return moved;
    };
    auto slopes = at(step);
    const auto behind = at(-step);
    if (!slopes || !behind)
        return std::nullopt;
    for (int i = 0; i < points.size(); ++i) {
        (*slopes)[i].easting = ((*slopes)[i].easting - (*behind)[i].easting) / (2.0 * step);
        (*slopes)[i].northing = ((*slopes)[i].northing - (*behind)[i].northing) / (2.0 * step);
    }
    return slopes;
}
