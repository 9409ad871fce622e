#pragma once

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"

#include <optional>

struct FieldInput;
struct ParamField;
struct ProjectionFields;

/// Edits one parameter record. A change of one key also changes the keys that depend on it by definition, and no other:
/// - transverse Mercator is method 0 with the scale factor 1 and method 1 with any other;
/// - "cutting_radius" follows the semi-major axis, so that the standard parallel stays where it is.
class CoordParamEditor {
public:
    const IDictionary& record() const { return *values; }

    /// Starts over with a copy of `record`.
    void setRecord(const IDictionary& record);

    /// Takes over what the user typed into a field. False when that changes nothing: an input that is not valid, or
    /// what the record holds already.
    bool setField(const ParamField& field, const FieldInput& input);

    /// Takes over name, axis and flattening of an ellipsoid record, with the numbers behind the texts.
    void setEllipsoid(const IDictionary& ellipsoid);

    /// Makes the record a system of that method. Values that the method needs and that the record lacks, or that can't
    /// stand in that method, get initial values; the values that were there before come back with the next method they
    /// fit, unless they were edited since. Other methods' values stay in the record.
    void setMethod(ProjectionMethod chosen);

    /// No datum shift, or a seven-parameter one; parameters that are missing then start with 0.
    void setShift(bool sevenParameters);

    /// Reverses the three rotations: from the position-vector to the coordinate-frame convention or back.
    void reverseRotations();

    /// The name of the geoid model; an empty name removes it.
    void setGeoid(const char* name);

    /// Takes over every key of `source`, with the numbers behind the texts; the record's other keys stay. When `source`
    /// says which datum shift there is ("_7type"), shift keys that it lacks are removed.
    void replaceValues(const IDictionary& source);

private:
    std::optional<ProjectionMethod> method() const;
    std::optional<double> semiMajorAxis() const;

    bool putNumber(const char* key, double value);
    void put(const char* key, double value);
    void restoreReplaced();
    void forgetReplaced();
    double initialValue(const ProjectionFields& fields, const ParamField& field) const;
    void complete(const ProjectionFields& fields);
    void chooseParallel(std::optional<ProjectionMethod> before);
    void setParallel(std::optional<double> parallel);
    void followFactor();
    void followAxis(std::optional<double> axisBefore, std::optional<double> parallel);

    DictionaryGuard values;
    DictionaryGuard replaced;       ///< values that the choice of a method replaced
    DictionaryGuard initial;        ///< and by what
    DictionaryGuard replacedRadius; ///< radius and axis of the standard parallel of a method the user came from
};
