#pragma once

#include "panel/record/AngleText.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class IDictionary;

/// What a field of the panel holds, in which unit it is shown, and how the record keeps it.
enum class Quantity {
    Length,            ///< metres
    InverseFlattening, ///< 0 for a sphere
    ScaleFactor,
    Latitude,         ///< degrees
    Longitude,        ///< degrees
    Azimuth,          ///< degrees
    StandardParallel, ///< a latitude in degrees, which the record keeps as a radius (ParallelRadius.h)
    SmallRotation,    ///< arc-seconds, which the record keeps in degrees
    ScaleDifference,  ///< parts per million
};

/// A text that the user typed into a field.
struct FieldInput {
    bool valid = false;
    double value = 0.0; ///< in the unit of the field
    QByteArray text;    ///< for the record (for a StandardParallel: the latitude)
    QString reason;     ///< translated; why a text that is not valid was refused, and what is allowed
};

/// One value of the record as the panel shows and edits it.
struct ParamField {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    const char* key;
    Quantity quantity;
    const char* label; ///< to be translated in the panel's context
    double minimum;    ///< in the unit of the field
    double maximum;
    double initial; ///< what a system that lacks the value starts with
    bool endsExcluded = false;
    bool optional = false; ///< may be left empty, which the record keeps as 0

    /// Whether the field reads and writes `otherKey`.
    bool is(const char* otherKey) const;
    bool isAngle() const;
    bool accepts(double value) const;

    QString labelText() const { return tr(label); }
    QString unitText(AngleNotation notation) const;
    QString rangeText() const;

    /// Takes a typed text apart. Angles come in any notation; every other number is a decimal one. The field's own unit
    /// may follow.
    FieldInput parse(const QString& text) const;

    /// The value that the record holds, in the unit of the field. False when it is absent (for an optional field: or 0)
    /// or no number.
    bool read(const IDictionary& record, double* value) const;

    /// The number that the record holds under the key, in the record's unit; 0 when there is none.
    double number(const IDictionary& record) const;

    /// Whether the record holds a value that the field accepts (or none, where it is optional).
    bool isSound(const IDictionary& record) const;

    /// The record's value as text, with all its digits; angles in `notation` and as AngleText::format() rounds them.
    /// Empty when the record has none; a text that is no number is shown as it is.
    QString shownText(const IDictionary& record, AngleNotation notation) const;
};
