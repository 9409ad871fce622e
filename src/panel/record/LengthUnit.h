#pragma once

#include <QCoreApplication>
#include <QString>

/// The units of length in which the tab "Check" takes and shows its figures; the record stays in metres.
class LengthUnit {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// EPSG 9001, 9002 and 9003.
    enum Kind { Metre, InternationalFoot, UsSurveyFoot };

    /// Metres in one unit: 1, 0.3048, or 12/39.37 (the Mendenhall order's 1200/3937).
    static double metres(Kind unit);

    /// As it stands behind a number: "m", "ft" or "ftUS".
    static QString symbol(Kind unit);

    /// The unit that the user chose, for all panels while the tool runs.
    static Kind chosen() { return chosenUnit; }
    static void choose(Kind unit) { chosenUnit = unit; }

    /// metres() and symbol() of the chosen unit.
    static double metres() { return metres(chosenUnit); }
    static QString symbol() { return symbol(chosenUnit); }

    /// Reads a number as NumberText::parseTyped() does, in the chosen unit, whose symbol may follow; gives metres.
    /// False for any other text, also one with another unit; `metres` is untouched then.
    static bool parse(const QString& text, double* metres);

    /// A length with 4 decimals in the chosen unit, without it; empty for NaN.
    static QString text(double metres);

    /// Why parse() refused a text, translated.
    static QString refusal();

private:
    static Kind chosenUnit;
};
