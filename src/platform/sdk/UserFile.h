#pragma once

#include "platform/sdk/CatalogueFile.h"

#include <QString>

/// One of the user's files on disk, with its previous generation ("*.bak") and what was set aside ("*.damaged-<time>").
class UserFile {
public:
    /// `fileKind` must outlive the object.
    explicit UserFile(const FileKind& fileKind);

    /// Where the file lies; empty while there is none.
    void setPath(const QString& filePath);

    /// Whether there is anything of the user's: the file, its previous generation, or a file that was set aside.
    bool exists() const;

    /// Reads with `read` (a path gives the content): the file when it is whole, else the previous generation when that
    /// is, else what can be read of the file, else of the previous generation.
    template <class Read> auto load(Read read) const {
        auto content = read(path);
        if (content.condition == FileCondition::Whole)
            return content;
        auto previous = read(previousGeneration(path));
        if (previous.condition == FileCondition::Whole || content.isEmpty())
            return previous;
        return content;
    }

    /// Opens a save of the file: a copy of it becomes the previous generation when it is whole, and is set aside when
    /// it is damaged. Missing folders are created.
    void openSave();

    /// Writes `content` to `target`, which is opened first unless openSave() just did. Nothing is written when a
    /// damaged file could not be set aside.
    template <class Content> void save(const QString& target, const Content& content) {
        if (openFor != target && !open(target))
            return;
        openFor.clear();
        // On a disk that is nearly full the copy must not cost the save: until then it is the file once more.
        if (!CatalogueFile::write(target, content) && dropPreviousGeneration(target))
            CatalogueFile::write(target, content);
    }

private:
    static QString previousGeneration(const QString& path);
    bool open(const QString& target) const;

    /// Removes the previous generation of `target` when it is no more than a copy of it; false when it is not.
    static bool dropPreviousGeneration(const QString& target);

    const FileKind& kind;
    QString path;
    QString openFor; ///< the path for which the opening of a save is done
};
