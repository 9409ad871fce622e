#pragma once

#include "platform/projection/WktSystem.h"

class QString;

/// Files with the WKT of a coordinate system, as GIS programs write them.
namespace WktFile {

/// What the file holds, with the name in UTF-8. Its text ends at the first NUL character. A byte-order mark tells its
/// encoding: UTF-8, UTF-16 or UTF-32. Without one, text that is not UTF-8 counts as text in the local encoding, or,
/// where that is UTF-8, in Windows-1252. Pairs of bytes that are letters in both are the local encoding's where that is
/// one of two bytes for each letter (GBK, Big5, Shift-JIS, EUC-KR).
WktSystem read(const QString& path);

} // namespace WktFile
