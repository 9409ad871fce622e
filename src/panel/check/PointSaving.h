#pragma once

#include "panel/computing/PointWriter.h"

#include <QSaveFile>

#include <future>

/// Writes a table of points to a file, piece by piece; the file is replaced when all of it is there.
class PointSaving {
public:
    /// The table stays as it is until the saving is done, or dropped.
    PointSaving(const PointTable& points, const QString& path, PointWriter::Digits digits);

    /// Writes the next piece, which takes some milliseconds, and says how much of all is done then: 1 at the end, also
    /// that by an error.
    double write();

    /// Whether the file is being put in its place: that can't be called off.
    bool isCommitting() const { return committed.valid(); }

    /// Why it failed; empty where it did not.
    QString error() const { return isFailed ? file.errorString() : QString(); }

private:
    const PointTable& points;
    QSaveFile file;
    PointWriter writer;
    std::size_t next = 0;
    bool isFailed = false;
    std::future<bool> committed; ///< to the disk, which may take its time
};
