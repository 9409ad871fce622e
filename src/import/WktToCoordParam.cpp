#include "import/WktToCoordParam.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/IDictionary.h"
#include "import/ProjDefineToCoordParam.h"
#include "platform/projection/IProjectionModule.h"

#include <QString>

WktSystem WktToCoordParam::read(const QByteArray& wkt) {
    IProjectionModule* const module = projectionModule();
    return module ? module->readWkt(wkt) : WktSystem();
}

void WktToCoordParam::convert(const WktSystem& system, IDictionary* record) {
    projDefineToCoordParam(InitializeProj(system.definition.constData()), record);
}

QByteArray WktToCoordParam::nameInCatalogue(const WktSystem& system) {
    return QString::fromUtf8(system.name).replace(QLatin1Char(','), QLatin1Char('-')).toLocal8Bit();
}

bool WktToCoordParam::write(const QByteArray& wkt, IDictionary* record) {
    const WktSystem system = read(wkt);
    if (system.content != WktSystem::Content::Projected)
        return false;
    convert(system, record);
    record->setText(CoordParamKey::name, nameInCatalogue(system).constData());
    return true;
}
