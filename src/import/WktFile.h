#pragma once

#include "platform/projection/WktSystem.h"

class QString;

/// Files with the WKT of a coordinate system, as GIS programs write them.
namespace WktFile {

/// What the file holds, with the name in UTF-8. Its text ends at the first NUL byte; a byte-order mark is skipped. Text
/// that is not UTF-8 counts as text in the local encoding, or, where that is UTF-8, in Windows-1252.
WktSystem read(const QString& path);

} // namespace WktFile
