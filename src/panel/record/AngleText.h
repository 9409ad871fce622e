#pragma once

#include <QCoreApplication>
#include <QString>

/// How angles are shown.
enum class AngleNotation { DecimalDegrees, DegreesMinutesSeconds };

/// Which angle it is: says which compass letters may stand with it.
enum class AngleRole { Latitude, Longitude, Azimuth };

/// An angle as the user typed it.
struct AngleInput {
    bool valid = false;
    double degrees = 0.0; ///< north and east positive
    QString decimal;      ///< decimal degrees for the record: the digits as typed, or all digits of a converted angle
    QString reason;       ///< translated; why a text that is not valid was refused
};

/// Angles as surveyors type and read them.
class AngleText {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// Reads decimal degrees or degrees, minutes and seconds: 117.5, 117 30 00.5, 117°30'0.5"E, -0:45:30, 117-30-00.5,
    /// S 45 30.5, 45d30m15s. The last part may have decimals; minutes and seconds lie below 60; a sign and a letter
    /// exclude each other. An "s" right behind digits that follow "m" stands for seconds; with a blank between it could
    /// be seconds or south, so that the text is refused. The range is not looked at.
    static AngleInput parse(const QString& text, AngleRole role);

    /// The same for a text that is typed into a field: there a comma within a number is the decimal one, unless there
    /// is another one or a point. No angle has thousands.
    static AngleInput parseTyped(const QString& text, AngleRole role);

    /// The angle to 12 decimals of a degree (0.1 µm on the ground), or to 1e-8 arc-seconds (3e-12 degrees) as
    /// 117°30'00.5".
    static QString format(double degrees, AngleNotation notation);

    /// Decimals of a degree that tell a tenth of a millimetre and more on the ground.
    static constexpr int pointDecimals = 10;

    /// The angle in the chosen notation, with at most that many decimals of a degree, or seconds with four fewer.
    static QString rounded(double degrees, int decimals = pointDecimals);

    /// A decimal angle as it was typed or stored, but with no more decimals than format() gives.
    static QString withoutNoise(const QString& decimal);

    /// The notation that the user chose, for all panels while the tool runs.
    static AngleNotation notation() { return chosenNotation; }
    static void setNotation(AngleNotation notation) { chosenNotation = notation; }

private:
    static QString letterMisfit(const QString& letter, AngleRole role);
    static AngleInput parseUnified(const QString& text, AngleRole role);

    static AngleNotation chosenNotation;
};
