#pragma once

#include <QCoreApplication>
#include <QString>

class IDictionary;
struct ParamField;
struct ProjectionFields;

/// What there is to say about a record's projection beyond the range of one value. All texts are translated.
class ProjectionAdvice {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// Why the record defines no projection, in one line; empty when it defines one.
    static QString problem(const IDictionary& record);

    /// Whether the record says that none of the methods holds its projection: method 0 with a scale factor other
    /// than 1.
    static bool fitsNoMethod(const IDictionary& record);

    /// Whether values that are sound one by one exclude each other: parallels that cancel out, points without a line.
    static bool isDegenerate(const ProjectionFields& projection, const IDictionary& record);

    /// A remark on a sound but unusual value of `field`; empty when there is none.
    static QString warning(const ProjectionFields& projection, const ParamField& field, const IDictionary& record);

private:
    static QString missing(const ProjectionFields* projection, const IDictionary& record);
    static QString scaleWarning(const ProjectionFields& projection, const IDictionary& record, double factor);
    static QString parallelWarning(const ProjectionFields& projection, const IDictionary& record, double latitude);
    static QString coneWarning(const ProjectionFields& projection, const IDictionary& record);
    static QString azimuthWarning(double azimuth);
    static QString meridianWarning(const IDictionary& record, double meridian);
};
