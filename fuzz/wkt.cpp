// Any bytes as a file that is imported: a record holds figures, and a name that the catalogue takes.

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "support/Support.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    writeScratch(scratchFile("input.prj"), data, size);
    const WktSystem system = WktFile::read(scratchFile("input.prj"));
    if (system.content != WktSystem::Content::Projected)
        return 0;
    require(!WktToCoordParam::nameInCatalogue(system).contains(','), "a name without a comma");
    const DictionaryGuard record;
    WktToCoordParam::convert(system, record.get());
    for (int i = 0; i < record->count(); ++i) {
        const char* const key = record->getKey(i);
        if (QByteArray(key) != "ellipsoid_name")
            require(std::isfinite(dictionary_number(*record, key, NAN)), key);
    }
    require(std::abs(dictionary_number(*record, "_7ppm", 0)) <= 1000, "a shift's scale difference");
    coordParamToProjDefine(*record);
    return 0;
}
