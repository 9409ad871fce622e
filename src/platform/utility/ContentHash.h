#pragma once

#include <QByteArray>

#include <array>

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
    static constexpr int laneCount = 4; ///< words that are taken side by side, as the processor can

    void mix(const char* block);

    qint64 bytes = 0;
    std::array<quint64, laneCount> lanes{};
    std::array<char, laneCount * sizeof(quint64)> pending{}; ///< the bytes behind the last whole block, then zeros
};
