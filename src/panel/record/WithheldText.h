#pragma once

#include "platform/projection/WktSystem.h"

#include <QString>

/// The one place that says in words, translated, why a record can't hold a definition.
namespace WithheldText {

/// In one sentence or two; empty for None.
QString of(const Withheld& withheld);

/// Why a record does not hold the system; empty when it does.
QString of(const WktSystem& system);

} // namespace WithheldText
