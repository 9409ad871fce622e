#pragma once

#include "platform/sdk/FileStamp.h"

/// A file of the catalogue as it lies on the disk.
struct FileBytes {
    /// Reads it whole.
    explicit FileBytes(const QString& path);

    bool exists = false;
    bool isRead = false; ///< to its end
    QByteArray bytes;
    FileStamp stamp;          ///< of no file when it was not read to its end
    bool isAsWritten = false; ///< it ends with a FileMark that fits: this program wrote it, and nobody changed a byte
};
