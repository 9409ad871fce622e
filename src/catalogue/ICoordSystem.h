#pragma once

class ICoordSysGroup;
class IDictionary;

/// The catalogue: groups of coordinate systems, ellipsoids and geoid models. One object for the whole process, used
/// from the GUI thread only.
///
/// Texts are NUL-terminated 8-bit strings in the local encoding. Lists of names come back as one text, the names joined
/// by "," in catalogue order; they stay valid until the next call. Names are compared exactly. Groups and records that
/// come back belong to the catalogue; records that are handed in stay the caller's, the catalogue keeps a copy.
class ICoordSystem {
public:
    virtual ~ICoordSystem() = default;

    /// Reads the whole catalogue from the folder `dataFolder` (ending in "/"). Called once, before anything else.
    virtual void load(const char* dataFolder) = 0;

    /// Writes groups and systems to the file `path`. What lies there becomes the previous generation or is set aside; a
    /// save that can't reach the path is there at the next load. With an empty path, which announces a save, nothing
    /// is written yet.
    virtual void saveCoordSystems(const char* path) = 0;

    virtual const char* getGroupNames() = 0;
    /// Null when there is no group of that name.
    virtual ICoordSysGroup* getGroup(const char* name) = 0;
    /// Adds an empty group, first in the catalogue. An empty or taken name is ignored.
    virtual void addGroup(const char* name) = 0;
    /// Removes the group with all its systems.
    virtual void deleteGroup(const char* name) = 0;
    /// Non-zero on success; 0 when nothing changed.
    virtual int renameGroup(const char* oldName, const char* newName) = 0;
    virtual bool hasGroup(const char* name) = 0;

    /// The ellipsoids that are shipped and the user's own.
    virtual const char* getEllipsoidNames() = 0;
    /// Stores a copy under the record's "ellipsoid_name", replacing an ellipsoid of that name.
    virtual void addEllipsoid(IDictionary* record) = 0;
    virtual void deleteEllipsoid(const char* name) = 0;
    /// Null when there is no ellipsoid of that name.
    virtual IDictionary* getEllipsoid(const char* name) = 0;
    /// As saveCoordSystems(), for the user's own ellipsoids.
    virtual void saveEllipsoids(const char* path) = 0;

    virtual const char* getGeoidNames() = 0;
    /// Stores a copy under the record's "geoid_name", replacing a geoid of that name.
    virtual void addGeoid(IDictionary* record) = 0;
    virtual void deleteGeoid(const char* name) = 0;
    /// Null when there is no geoid of that name.
    virtual IDictionary* getGeoid(const char* name) = 0;
    /// As saveCoordSystems(), for the user's own geoids.
    virtual void saveGeoids(const char* path) = 0;
};

/// The one catalogue object of the process, never null and never freed. The tool passes an empty text and 0.
ICoordSystem* get_instance_ICoordSystem(const char* name, int kind);
