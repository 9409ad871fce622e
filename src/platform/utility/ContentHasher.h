#pragma once

#include "platform/utility/ContentHash.h"

#include <memory>

/// Takes the hash of a content that comes piece by piece.
class ContentHasher {
public:
    ContentHasher();
    ~ContentHasher();

    ContentHasher(const ContentHasher&) = delete;
    ContentHasher& operator=(const ContentHasher&) = delete;

    /// The next piece; the cuts between pieces make no difference.
    void add(const char* piece, int size);
    void add(const QByteArray& piece) { add(piece.constData(), piece.size()); }

    /// Of all pieces so far.
    ContentHash hash() const;

private:
    struct State;
    std::unique_ptr<State> state;
    qint64 bytes = 0;
};
