#include "platform/sdk/CoordSysGroup.h"

#include "catalogue/CoordParamKey.h"

CoordSysGroup::CoordSysGroup() : systems(CoordParamKey::name) {
}

const char* CoordSysGroup::getCoordSystemNames() {
    return systems.names().constData();
}

IDictionary* CoordSysGroup::getCoordSystem(const char* systemName) {
    const CatalogueRecord* record = systems.find(systemName);
    return record ? record->values() : nullptr;
}

int CoordSysGroup::addCoordSystem(IDictionary* record) {
    return systems.prepend(record) ? 1 : 0;
}

void CoordSysGroup::setCoordSystem(const char* systemName, const IDictionary* record) {
    systems.set(systemName, record);
}

int CoordSysGroup::renameCoordSystem(const char* oldName, const char* newName) {
    return systems.rename(oldName, newName) ? 1 : 0;
}

void CoordSysGroup::deleteCoordSystem(const char* systemName) {
    systems.remove(systemName);
}

bool CoordSysGroup::hasCoordSystem(const char* systemName) {
    return systems.find(systemName) != nullptr;
}
