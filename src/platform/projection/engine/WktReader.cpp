#include "platform/projection/engine/WktReader.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <ogr_spatialref.h>

namespace {

/// GDAL's errors stay off the terminal while it lives.
class QuietGdal {
public:
    QuietGdal() { CPLPushErrorHandler(CPLQuietErrorHandler); }
    ~QuietGdal() { CPLPopErrorHandler(); }

    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
};

QByteArray exportedDefinition(const OGRSpatialReference& reference) {
    char* text = nullptr;
    reference.exportToProj4(&text);
    QByteArray definition(text);
    CPLFree(text);
    return definition;
}

} // namespace

WktSystem WktReader::read(const QByteArray& wkt) {
    const QuietGdal quiet;
    OGRSpatialReference reference(nullptr);
    const char* text = wkt.constData();
    if (reference.importFromWkt(&text) != OGRERR_NONE)
        return {};
    if (!reference.IsProjected())
        return {WktSystem::Content::NotProjected, {}, {}};
    return {WktSystem::Content::Projected, reference.GetAttrValue("PROJCS", 0), exportedDefinition(reference)};
}
