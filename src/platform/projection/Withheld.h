#pragma once

#include <QByteArray>

/// Why a parameter record does not hold a definition: what stands in the way first.
struct Withheld {
    enum class Reason {
        None, ///< it is held
        // Not a projected system
        Geographic,
        Geocentric,
        Vertical,
        Local,     ///< of an engineering work, without a place on the Earth
        OtherKind, ///< another kind of system, or no system at all
        // A projected one that no method of the record says
        Method,            ///< none of them is that; the detail is the method's name
        Axes,              ///< they do not point east and north; the directions
        GridAngle,         ///< the grid is not turned by the azimuth of its central line; both angles in degrees
        OriginFarAway,     ///< counted from a natural origin a quarter of the globe away
        OriginOffParallel, ///< one parallel, and by the method's name the origin would lie on it; both in degrees
        NoPole,            ///< a polar projection without a pole, or one whose scale is not stated in one way
        // One that leaves a doubt; the details name the parameter, unit or meridian as the text does
        MissingParameter,
        UnknownParameter,
        ForeignParameter, ///< another method's
        TwoValues,        ///< of one parameter
        Value,            ///< no number of its kind, or out of range
        Unit,             ///< not what its name says, of another quantity, missing, or not one for both axes
        Meridian,         ///< the prime meridian's figure is not the one of its name
        Ellipsoid,        ///< its axes are stated twice and differ, or are in no metres
        Twice,            ///< a part that there is once stands twice, or has a number too many
        Disagreement,     ///< readers of such texts make another projection of it, or none
        NamedFile,        ///< the text names a file with more of it; its item
        // No definition
        UnknownForm, ///< in none of the forms that are read
        TooLong,     ///< or nested too deep; how many bytes are read at most
        UnknownCode, ///< no registry has it; the code
        Syntax,      ///< in PROJ's words, in English
    };

    Reason reason = Reason::None;
    QByteArray detail; ///< UTF-8, not for translation
};
