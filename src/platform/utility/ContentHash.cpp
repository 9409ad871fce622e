#include "platform/utility/ContentHash.h"

#include <algorithm>
#include <cstring>

static constexpr qint64 wordSize = sizeof(quint64);

/// FNV-1a's way, eight bytes at a time: multiplying spreads a bit upwards, the shift brings it down again.
void ContentHash::mix(quint64 word) {
    constexpr quint64 factor = 0x9E3779B97F4A7C15; // odd; 2^64 divided by the golden ratio
    hash = (hash ^ word) * factor;
    hash ^= hash >> 29;
}

void ContentHash::add(const QByteArray& piece) {
    const char* next = piece.constData();
    qint64 left = piece.size();
    const auto take = [&](quint64* word, qint64 place, qint64 count) {
        std::memcpy(reinterpret_cast<char*>(word) + place, next, size_t(count));
        next += count;
        left -= count;
        bytes += count;
    };
    if (const qint64 place = bytes % wordSize) {
        take(&pending, place, std::min(left, wordSize - place));
        if (bytes % wordSize != 0)
            return;
        mix(pending);
        pending = 0;
    }
    while (left >= wordSize) {
        quint64 word;
        take(&word, 0, wordSize);
        mix(word);
    }
    take(&pending, 0, left);
}

bool ContentHash::operator==(const ContentHash& other) const {
    return bytes == other.bytes && hash == other.hash && pending == other.pending;
}
