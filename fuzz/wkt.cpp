// Any bytes as a file that is imported: a record holds figures, and a name that the catalogue takes.

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "import/WktFile.h"
#include "support/Support.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    writeScratch(scratchFile("input.prj"), data, size);
    const WktFile file(scratchFile("input.prj"));
    if (file.content() != WktFile::Content::Projected)
        return 0;
    require(!file.name().contains(','), "a name without a comma");
    const DictionaryGuard record;
    projDefineToCoordParam(InitializeProj(file.definition()), record.get());
    for (int i = 0; i < record->count(); ++i) {
        const char* const key = record->getKey(i);
        if (QByteArray(key) != "ellipsoid_name")
            require(std::isfinite(dictionary_number(*record, key, NAN)), key);
    }
    coordParamToProjDefine(*record);
    return 0;
}
