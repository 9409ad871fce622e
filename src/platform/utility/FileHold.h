#pragma once

#include <QFile>

/// Whether somebody works on a file. A hold ends with the process, however that ends.
namespace FileHold {

/// Holds an open file until it is closed. False where the file system can't do that.
bool take(QFile& file);

enum class State {
    Free,
    Held,
    Unknown, ///< it can't be opened, or the file system knows no holds
};

State of(const QString& path);

} // namespace FileHold
