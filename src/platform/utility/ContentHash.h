#pragma once

#include <QByteArray>

/// Size and XXH3 hash (128 bits) of a file's content. It tells contents apart that differ by accident, several times
/// faster than a disk reads them. It is no seal against intent: whoever wants the same hash can have it.
class ContentHash {
public:
    /// Of no bytes.
    ContentHash() : ContentHash(QByteArray()) {}
    explicit ContentHash(const QByteArray& content);

    qint64 size() const { return bytes; }

    /// The hash in 32 hexadecimal digits, as the program xxh128sum prints it.
    QByteArray toHex() const;

    bool operator==(const ContentHash& other) const;

private:
    friend class ContentHasher;
    ContentHash(qint64 size, quint64 highHalf, quint64 lowHalf) : bytes(size), high(highHalf), low(lowHalf) {}

    qint64 bytes;
    quint64 high;
    quint64 low;
};
