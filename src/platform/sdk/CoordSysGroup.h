#pragma once

#include "catalogue/ICoordSysGroup.h"
#include "platform/sdk/RecordList.h"

/// One group of the catalogue.
class CoordSysGroup final : public ICoordSysGroup {
public:
    CoordSysGroup();

    const char* getCoordSystemNames() override;
    IDictionary* getCoordSystem(const char* name) override;
    int addCoordSystem(IDictionary* record) override;
    void setCoordSystem(const char* name, const IDictionary* record) override;
    int renameCoordSystem(const char* oldName, const char* newName) override;
    void deleteCoordSystem(const char* name) override;
    bool hasCoordSystem(const char* name) override;

    QByteArray name;
    RecordList systems;
    UnknownXml unknown;
};
