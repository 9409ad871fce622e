#include "panel/record/StandardParallel.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "import/ParallelRadius.h"
#include "panel/record/NumberText.h"

#include <algorithm>

std::optional<double> StandardParallel::ofRecord(const IDictionary& record) {
    const double a = dictionary_number(record, CoordParamKey::ellipsoidA, 0.0);
    const double kept = dictionary_number(record, CoordParamKey::cuttingRadius, 0.0);
    double number;
    // A text has six decimals; a number behind it is exact to the last bits.
    const double tolerance = record.getNumber(CoordParamKey::cuttingRadius, &number) ? kept * 4e-16 : 5e-7;
    if (!(a > 0.0) || kept < 1e-6 || kept > a + tolerance)
        return std::nullopt;
    const double latitude = ParallelRadius::toLatitude(a, std::min(kept, a));
    const bool isSouthern =
        dictionary_number(record, CoordParamKey::projectType, -1.0) == int(ProjectionMethod::Stereographic) &&
        dictionary_number(record, CoordParamKey::orgLat, 0.0) < 0.0;
    const double shortened = NumberText::fewestDigits(latitude, kept, tolerance,
                                                      [a](double phi) { return ParallelRadius::ofLatitude(a, phi); });
    return isSouthern ? -shortened : shortened;
}
