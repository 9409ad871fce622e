#pragma once

#include <QByteArray>

/// Size and hash of a file's content, taken piece by piece: tells contents apart that differ by accident, nearly at the
/// speed of the memory, so that no load waits for it. It is no seal against intent.
class ContentHash {
public:
    ContentHash() = default;
    explicit ContentHash(const QByteArray& content) { add(content); }

    /// The next piece; the cuts between pieces make no difference.
    void add(const QByteArray& piece);

    qint64 size() const { return bytes; }

    bool operator==(const ContentHash& other) const;

private:
    void mix(quint64 word);

    qint64 bytes = 0;
    quint64 hash = 0;
    quint64 pending = 0; ///< the last bytes, up to seven
};
