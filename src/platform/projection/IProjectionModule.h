#pragma once

class IEpsgRegistry;
class IGeodesy;
class IProjectionLibrary;
class IWktReader;

/// Everything that stands over GDAL and PROJ. The two libraries and what they pull in need three times as long to map
/// as the whole tool needs to show its window, so this module is a library of its own that is loaded on first use.
class IProjectionModule {
public:
    virtual ~IProjectionModule() = default;

    virtual IProjectionLibrary& library() = 0;
    virtual IWktReader& wktReader() = 0;
    virtual IGeodesy& geodesy() = 0;
    virtual IEpsgRegistry& registry() = 0;
};

/// The module, loaded from "$(APP_DIR)/../lib" by the first call; null when it can't be loaded.
IProjectionModule* projectionModule();
