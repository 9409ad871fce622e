#pragma once

#include <QString>
#include <QStringList>

class IDictionary;
class QByteArray;

/// A coordinate system's WKT taken into a parameter record, the way the import of files does it.
class DefinitionImport {
public:
    /// Writes name, ellipsoid, projection and shift keys of the system that `wkt` (UTF-8, one system) holds. False,
    /// with the record untouched, when it holds no projected system or the projection module is missing.
    static bool read(const QByteArray& wkt, IDictionary* record);

    /// What of `record` is not in `imported`, named as on the panel: the name, the ellipsoid, fields of the method, the
    /// datum shift. Numbers count as equal when what is between them matters less than 0.1 mm on the ground.
    static QStringList differences(const IDictionary& record, const IDictionary& imported);
};
