// Any text as a PROJ definition: a normalised one is normal, and its record defines a system that computes.

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/ProjectionLibrary.h"
#include "support/Support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const ProjHandle handle = InitializeProj(text);
    const QByteArray normal = GetProjDefine(handle);
    require(GetProjDefine(InitializeProj(normal)) == normal, "a normalised definition is normal");
    const ProjEllipsoid ellipsoid = GetProjEllipsoid(handle);
    require(ellipsoid.a > 0.0 && ellipsoid.b > 0.0, "an ellipsoid has axes");

    const DictionaryGuard record;
    projDefineToCoordParam(handle, record.get());
    const QByteArray again = coordParamToProjDefine(*record);
    if (!again.isEmpty()) {
        if (const auto system = projectionModule()->createSystem(again))
            system->toGrid({52.0, 5.0, 0.0});
    }
    return 0;
}
