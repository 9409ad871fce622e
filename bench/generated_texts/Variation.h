#pragma once

#include "Judge.h"
#include "Random.h"

#include <optional>

/// One way to damage or vary a sound text.
struct Variation {
    const char* name;
    /// Changes the text, and the meaning with it where the text then says another. None where the text has nothing to
    /// vary that way; it may be changed in part then.
    std::optional<Expectation> (*apply)(GeneratedText& generated, Random& random);

    static const QVector<Variation>& all();
};
