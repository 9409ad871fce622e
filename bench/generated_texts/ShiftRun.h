#pragma once

#include "Oracle.h"
#include "Random.h"
#include "TextGenerator.h"

#include <QMap>

#include <array>

class IDictionary;

/// Datum shifts of the EPSG registry, as they are and with random numbers, in the forms that texts have for them.
class ShiftRun {
public:
    explicit ShiftRun(unsigned long long seed);
    ~ShiftRun();

    ShiftRun(const ShiftRun&) = delete;
    ShiftRun& operator=(const ShiftRun&) = delete;

    /// Takes each `every`-th of the registry's; prints its table. False when a shift or its projection was read wrong.
    bool run(int every);

private:
    struct Parameter {
        QByteArray name;
        QByteArray code;
        QByteArray number;
        QByteArray unit;
        double factor; ///< to metres, radians or 1
    };

    struct Transformation {
        QByteArray code;
        QByteArray methodName;
        int method; ///< EPSG's
        QVector<Parameter> parameters;
    };

    struct Count {
        int shifts = 0;
        int right = 0;
        int leftOut = 0;
        int wrong = 0;
    };

    enum class Form { ToWgs84, Bound, BoundWithUnits, Proj };
    using Shift = std::array<double, 7>; ///< as PROJ's +towgs84: metres, arc-seconds (position vector), ppm

    QVector<Transformation> readTransformations() const;
    Transformation readTransformation(const char* code) const;
    Transformation withOtherNumbers(Transformation transformation);
    void take(const Transformation& transformation, Form form);
    void judge(Form form, const Transformation& transformation, const QByteArray& text, const Meaning& meaning,
               const IDictionary& record);

    static Shift shiftOf(const Transformation& transformation);
    static QByteArray boundCrs(const Transformation& transformation, const QByteArray& crs, bool hasUnits);

    PJ_CONTEXT* context;
    Random random;
    Oracle oracle;
    QMap<QByteArray, Count> byForm;
};
