#pragma once

#include "platform/sdk/FileWriter.h"

#include <QString>

#include <functional>

/// One of the user's files on disk, with all that is kept of it: docs/file-formats.md says what lies where.
///
/// A save reaches the file's folder, or it lies whole in the rescue folder until the next start. Whatever else may
/// happen, nothing that was there is lost: what this object read or wrote last becomes the previous generation, and
/// anything else in the file's place is set aside under a name of its own.
class UserFile {
public:
    /// `rescueFolder` is where a save goes that can't reach the file's folder.
    explicit UserFile(const QString& rescueFolder);

    /// Where the file lies; what saves left there that were killed is removed.
    void setPath(const QString& filePath);

    /// Whether there is anything of the user's: the file, its previous generation, a rescued save, or a file that was
    /// set aside.
    bool exists() const;

    /// Reads with `read` (a path gives the content): a rescued save when it is newer than the file; the file when it is
    /// whole; else the previous generation when that is; else what can be read of the file, else of the previous
    /// generation.
    template <class Read> auto load(Read read) {
        if (hasNewerRescue()) {
            auto rescued = read(rescuePath(path));
            if (rescued.condition == FileCondition::Whole) {
                bringHome([&](FileReplacement& file) { FileWriter(file).write(rescued); });
                return rescued;
            }
        }
        auto content = read(path);
        known = content.stamp;
        isKnownWhole = content.condition == FileCondition::Whole;
        if (isKnownWhole)
            return content;
        auto previous = read(previousGeneration(path));
        if (previous.condition == FileCondition::Whole || content.isEmpty())
            return previous;
        return content;
    }

    /// Writes `content` to `target`, with missing folders.
    template <class Content> void save(const QString& target, const Content& content) {
        saveWith([&](FileReplacement& file) { FileWriter(file).write(content); }, target);
    }

private:
    using Write = std::function<void(FileReplacement& file)>;

    static QString previousGeneration(const QString& target);
    QString rescuePath(const QString& target) const;

    void removeLeftovers() const;
    bool hasNewerRescue() const;
    /// Puts a rescued save in the file's place, where it belongs.
    void bringHome(const Write& write);

    void saveWith(const Write& write, const QString& target);
    bool replace(const QString& target, const Write& write);
    bool isKnown(const QString& target) const;
    /// Keeps what lies at `place`, the file that `target` names, as what it is. False when it may not be replaced.
    bool keep(const QString& target, const QString& place, const ContentHash& next) const;
    void keepGeneration(const QString& target, const QString& place) const;
    void writeRescue(const QString& target, const Write& write);
    void settleRescue(const QString& target);

    QString rescueFolder;
    QString path;
    FileStamp known; ///< of the file at `path` when it was last read or written here
    bool isKnownWhole = false;
    QString ownRescue; ///< the rescued save that is part of what is being saved now
};
