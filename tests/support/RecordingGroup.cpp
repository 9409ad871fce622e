#include "support/RecordingGroup.h"

#include "catalogue/CoordParamKey.h"
#include "support/CallLog.h"

RecordingGroup::RecordingGroup(CallLog& itsLog, const QString& groupName) : name(groupName), log(itsLog) {
}

const char* RecordingGroup::getCoordSystemNames() {
    return log.listed(name + ".getCoordSystemNames", answer, systems.names());
}

IDictionary* RecordingGroup::getCoordSystem(const char* system) {
    return systems.find(logged("getCoordSystem", system));
}

int RecordingGroup::addCoordSystem(IDictionary* record) {
    const QString system = logged("addCoordSystem", record->getValue(CoordParamKey::name));
    if (system.isEmpty() || systems.find(system))
        return 0;
    systems.put(system, record, 0);
    return 1;
}

void RecordingGroup::setCoordSystem(const char* system, const IDictionary* record) {
    if (systems.find(logged("setCoordSystem", system)))
        systems.put(QString::fromLocal8Bit(system), record, 0)->setText(CoordParamKey::name, system);
}

int RecordingGroup::renameCoordSystem(const char* oldName, const char* newName) {
    logged("renameCoordSystem", QByteArray(oldName) + ',' + newName);
    return !log.refuseRename && systems.rename(QString::fromLocal8Bit(oldName), QString::fromLocal8Bit(newName));
}

void RecordingGroup::deleteCoordSystem(const char* system) {
    systems.remove(logged("deleteCoordSystem", system));
}

bool RecordingGroup::hasCoordSystem(const char* system) {
    return systems.find(logged("hasCoordSystem", system));
}

QString RecordingGroup::logged(const char* call, const char* argument) {
    return log.logged(name + "." + call, argument);
}
