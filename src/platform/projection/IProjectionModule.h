#pragma once

#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/ProjectionLibrary.h"
#include "platform/projection/ReadDefinition.h"
#include "platform/projection/WktDialect.h"
#include "platform/projection/WktNames.h"
#include "platform/projection/WktSystem.h"

#include <QByteArray>

#include <memory>

class IEpsgRegistry;

/// Everything that stands over GDAL and PROJ. The two libraries and what they pull in need three times as long to map
/// as the whole tool needs to show its window, so this module is a library of its own that is loaded on first use.
/// Texts are UTF-8.
class IProjectionModule {
public:
    virtual ~IProjectionModule() = default;

    /// The projection library's four functions; see ProjectionLibrary.h for what each gives. A null handle is the empty
    /// definition.
    virtual ProjHandle initialize(const char* definition) = 0;
    virtual const char* define(ProjHandle handle) = 0;
    virtual ProjEllipsoid ellipsoid(ProjHandle handle) = 0;
    virtual ProjTowgs84 towgs84(ProjHandle handle) = 0;

    /// Reads a coordinate system in WKT 1 (GDAL's and ESRI's dialects) or WKT 2: one system's text without a byte-order
    /// mark. Nothing is written to the terminal, whatever it holds.
    virtual WktSystem readWkt(const QByteArray& wkt) = 0;

    /// Reads what a person may paste for a coordinate system: WKT as readWkt(), PROJJSON, a PROJ text, an identifier of
    /// a registry in PROJ's database ("EPSG:25832", "25832", "ESRI:102003", OGC's URN and URL of it). Blanks, quotes
    /// and a byte-order mark around it don't count. No file is opened, whatever the text names, and nothing is written
    /// to the terminal.
    virtual ReadDefinition readDefinition(const QByteArray& text) = 0;

    /// The definition as WKT, its parts named as given: letter for letter, but for blanks and what WKT 1 calls a datum
    /// of the registry ("D_WGS_1984"). Numbers have 15 digits. On one line, as files hold it, or `indented` on many for
    /// reading. Empty when the dialect can't express the definition.
    virtual QByteArray exportWkt(const QByteArray& definition, const WktNames& names, WktDialect dialect,
                                 bool indented) = 0;

    /// The system of a definition "+proj=... +a=... ..." with lengths in metres and longitudes from Greenwich; null
    /// when PROJ can't make a projection of it. An item +towgs84 (3 or 7 values) is the shift.
    virtual std::unique_ptr<IProjectedSystem> createSystem(const QByteArray& definition) = 0;

    virtual IEpsgRegistry& registry() = 0;

    /// PROJ's version: "9.1.1".
    virtual QByteArray version() = 0;
};

/// The module, loaded from "$(APP_DIR)/../lib" by the first call; null when it can't be loaded.
IProjectionModule* projectionModule();

/// The user may be about to need the module: has it mapped in another thread, so that nobody waits for that later. Not
/// at the start already: who never computes does not pay for it. To be called by the thread of the windows.
void prepareProjectionModule();
