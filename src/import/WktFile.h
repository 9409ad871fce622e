#pragma once

#include <QByteArray>
#include <QString>

/// One file with the WKT of a coordinate system, as GIS programs write it.
class WktFile {
public:
    enum class Content {
        NotOpened,    ///< no such file, a folder, or not readable
        Unreadable,   ///< no coordinate system
        NotProjected, ///< a coordinate system of another kind
        Projected,
    };

    /// Reads the file at once. Its text ends at the first NUL byte; a byte-order mark is skipped. Text that is not
    /// UTF-8 counts as text in the local encoding, or, where that is UTF-8, in Windows-1252.
    explicit WktFile(const QString& path);

    Content content() const { return kind; }

    /// The projected system's PROJ.4 definition, for InitializeProj().
    const QByteArray& definition() const { return projDefinition; }

    /// The projected system's name, with "-" in place of every ",": the catalogue joins names by ",".
    const QString& name() const { return systemName; }

private:
    Content kind = Content::NotOpened;
    QByteArray projDefinition;
    QString systemName;
};
