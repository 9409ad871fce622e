#include "ShiftRun.h"
#include "UnitRun.h"
#include "VariationRun.h"

#include <QCoreApplication>

#include <algorithm>

/// generated_texts [COUNT] [SEED]: damaged and varied texts.
/// generated_texts units [SYSTEMS] [EVERY]: systems of the registry in other units; each EVERY-th of the texts.
/// generated_texts shifts [EVERY] [SEED]: each EVERY-th datum shift of the registry, and one with random numbers.
/// Ends with 1 when a text was read wrong.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString mode = arguments.value(1);
    const auto number = [&arguments](int index, int otherwise) {
        return index < arguments.size() ? std::max(1, arguments[index].toInt()) : otherwise;
    };
    const auto seed = [&number](int index) { return static_cast<unsigned long long>(number(index, 1)); };
    if (mode == QLatin1String("units"))
        return UnitRun().run(number(2, 400), number(3, 1)) ? 0 : 1;
    if (mode == QLatin1String("shifts"))
        return ShiftRun(seed(3)).run(number(2, 1)) ? 0 : 1;
    return VariationRun(seed(2)).run(number(1, 10000)) ? 0 : 1;
}
