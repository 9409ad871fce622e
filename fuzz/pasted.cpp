// Any text as one that is pasted: it is held, with a record that defines a projection, or there is a reason in words.

#include "catalogue/CoordParamKey.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/record/PastedDefinition.h"
#include "support/Support.h"

#include <sanitizer/lsan_interface.h>

#include <optional>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    // QJsonDocument loses what it has made of a text that breaks off (Qt 5.15).
    std::optional<__lsan::ScopedDisabler> leaksOfJson;
    if (text.contains('{'))
        leaksOfJson.emplace();
    const PastedDefinition pasted(text);
    require(pasted.isHeld() == coordParamDefinesProjection(pasted.values()), "what is held defines a projection");
    require(pasted.isHeld() != pasted.understood().isEmpty(), "what is held is told in words");
    require(!pasted.isHeld() || pasted.reason().isEmpty(), "what is held has no reason against it");
    require(pasted.isHeld() || text.isEmpty() || !text[0].isLetterOrNumber() || !pasted.reason().isEmpty(),
            "what is not held has a reason");
    require(pasted.place() <= text.size(), "a place in the text");
    return 0;
}
