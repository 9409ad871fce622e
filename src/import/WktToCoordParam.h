#pragma once

#include "platform/projection/WktSystem.h"

class IDictionary;

/// From the WKT of a coordinate system to its parameter record.
namespace WktToCoordParam {

/// What a text (UTF-8, one system, no byte-order mark) holds; without the projection module it is unreadable.
WktSystem read(const QByteArray& wkt);

/// Writes the keys of a projected system, all but "name": see projDefineToCoordParam().
void convert(const WktSystem& system, IDictionary* record);

/// The system's name in the local encoding, with "-" in place of every ",": the catalogue joins names by ",".
QByteArray nameInCatalogue(const WktSystem& system);

/// All three: false, with the record untouched, when the text holds no projected system.
bool write(const QByteArray& wkt, IDictionary* record);

} // namespace WktToCoordParam
