#pragma once

/// What a file's elements are called, and the key that names a record of it.
struct FileKind {
    const char* root;
    const char* record;
    const char* nameKey;
};

extern const FileKind systemFile; ///< groups of coordinate systems
extern const FileKind ellipsoidFile;
extern const FileKind geoidFile;
