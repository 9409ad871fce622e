#pragma once

class IDictionary;

/// One group of coordinate systems, handed out by ICoordSystem::getGroup() and owned by the catalogue: use it at once
/// and keep no pointer to it across a change of the catalogue.
///
/// Names are compared exactly and are unique within the group. Records that come back belong to the catalogue.
class ICoordSysGroup {
public:
    virtual ~ICoordSysGroup() = default;

    /// The names of all systems in catalogue order, joined by ",".
    virtual const char* getCoordSystemNames() = 0;

    /// The parameter record of the system `name`, or null when the group has none of that name.
    virtual IDictionary* getCoordSystem(const char* name) = 0;

    /// Adds a system named by the record's "name", first in the group; the catalogue keeps a copy of the record.
    /// Non-zero when added; 0 when the name is missing, empty or taken.
    virtual int addCoordSystem(IDictionary* record) = 0;

    /// Replaces the record of the existing system `name` by a copy of `record`, whose "name" becomes `name`.
    virtual void setCoordSystem(const char* name, const IDictionary* record) = 0;

    /// Non-zero on success; 0 when nothing changed (no such system, or the new name is empty or taken).
    virtual int renameCoordSystem(const char* oldName, const char* newName) = 0;

    virtual void deleteCoordSystem(const char* name) = 0;
    virtual bool hasCoordSystem(const char* name) = 0;
};
