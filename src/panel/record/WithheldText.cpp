#include "panel/record/WithheldText.h"

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "panel/record/PanelText.h"

namespace {

using Reason = Withheld::Reason;

/// With "%1" for the detail, or with "%1" and "%2" for its two numbers.
QString sentence(Reason reason) {
    switch (reason) {
    case Reason::None:
        break;
    case Reason::Geographic:
        return PanelText::tr("A geographic system: latitude and longitude, without a projection.");
    case Reason::Geocentric:
        return PanelText::tr("A geocentric system: X, Y and Z, without a projection.");
    case Reason::Vertical:
        return PanelText::tr("A system of heights, without a projection.");
    case Reason::Local:
        return PanelText::tr("A local system, without a place on the Earth.");
    case Reason::OtherKind:
        return PanelText::tr("No system that is projected.");
    case Reason::Method:
        return PanelText::tr("None of the methods holds this projection exactly: %1.");
    case Reason::Axes:
        return PanelText::tr("The axes do not point east and north, but: %1.");
    case Reason::GridAngle:
        return PanelText::tr("The grid is turned by %1°, not by the azimuth of the line, %2°.");
    case Reason::OriginFarAway:
        return PanelText::tr("With the azimuth 90° easting and northing can't count from the natural origin.");
    case Reason::OriginOffParallel:
        return PanelText::tr("The standard parallel, %1°, is not the latitude of origin, %2°, as this method has it.");
    case Reason::NoPole:
        return PanelText::tr("A polar projection that names no pole, or does not say its scale in one way.");
    case Reason::MissingParameter:
        return PanelText::tr("A parameter is missing: %1.");
    case Reason::UnknownParameter:
        return PanelText::tr("A parameter is unknown: %1.");
    case Reason::ForeignParameter:
        return PanelText::tr("A parameter does not belong to the method: %1.");
    case Reason::TwoValues:
        return PanelText::tr("A parameter has two values: %1.");
    case Reason::Value:
        return PanelText::tr("A value is no number, or out of range: %1.");
    case Reason::Unit:
        return PanelText::tr("A unit is missing, or not what its name says: %1.");
    case Reason::Meridian:
        return PanelText::tr("The prime meridian's longitude is not that of its name: %1.");
    case Reason::Ellipsoid:
        return PanelText::tr("The ellipsoid is unknown, or its axes leave a doubt.");
    case Reason::Twice:
        return PanelText::tr("Twice, or with a number too many (a decimal comma?): %1.");
    case Reason::Disagreement:
        return PanelText::tr("PROJ makes another projection of these parameters, or none.");
    case Reason::NamedFile:
        return PanelText::tr("The text names a file, which is not read: %1.");
    case Reason::UnknownForm:
        return PanelText::tr("No WKT, no PROJJSON, no PROJ definition and no code of a registry.");
    case Reason::TooLong:
        return PanelText::tr("Too long, or brackets too deep: up to %1 bytes are read.");
    case Reason::UnknownCode:
        return PanelText::tr("No registry has the system %1.");
    case Reason::Syntax:
        return PanelText::tr("PROJ can't read it: %1");
    }
    return QString();
}

} // namespace

QString WithheldText::of(const Withheld& withheld) {
    const QString text = sentence(withheld.reason);
    const QString detail = QString::fromUtf8(withheld.detail);
    return text.contains("%2")   ? text.arg(detail.section(", ", 0, 0), detail.section(", ", 1))
           : text.contains("%1") ? text.arg(detail)
                                 : text;
}

QString WithheldText::of(const WktSystem& system) {
    if (system.content != WktSystem::Content::Projected || system.withheld.reason != Reason::None)
        return of(system.withheld);
    const DictionaryGuard record;
    WktToCoordParam::convert(system, record.get());
    return coordParamDefinesProjection(*record) ? QString() : of({Reason::Disagreement, {}});
}
