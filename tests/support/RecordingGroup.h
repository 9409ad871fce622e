#pragma once

#include "catalogue/ICoordSysGroup.h"
#include "support/RecordingList.h"

#include <QByteArray>
#include <QString>

struct CallLog;

/// A group of RecordingCatalogue.
class RecordingGroup : public ICoordSysGroup {
public:
    RecordingGroup(CallLog& itsLog, const QString& groupName);

    const char* getCoordSystemNames() override;
    IDictionary* getCoordSystem(const char* system) override;
    int addCoordSystem(IDictionary* record) override;
    void setCoordSystem(const char* system, const IDictionary* record) override;
    int renameCoordSystem(const char* oldName, const char* newName) override;
    void deleteCoordSystem(const char* system) override;
    bool hasCoordSystem(const char* system) override;

    QString name;
    RecordingList systems;

private:
    QString logged(const char* call, const char* argument);

    CallLog& log;
    QByteArray answer;
};
