#include "platform/utility/ContentHash.h"

#include <algorithm>
#include <cstring>

/// FNV-1a's way, eight bytes at a time: multiplying spreads a bit upwards, the shift brings it down again.
void ContentHash::mix(const char* block) {
    constexpr quint64 factor = 0x9E3779B97F4A7C15; // odd; 2^64 divided by the golden ratio
    for (quint64& lane : lanes) {
        quint64 word;
        std::memcpy(&word, block, sizeof word);
        block += sizeof word;
        lane = (lane ^ word) * factor;
        lane ^= lane >> 29;
    }
}

void ContentHash::add(const QByteArray& piece) {
    const size_t blockSize = pending.size();
    const char* next = piece.constData();
    const char* const end = next + piece.size();
    const size_t place = size_t(bytes) % blockSize;
    bytes += piece.size();
    if (place > 0) {
        const size_t count = std::min(size_t(end - next), blockSize - place);
        std::memcpy(pending.data() + place, next, count);
        next += count;
        if (place + count < blockSize)
            return;
        mix(pending.data());
        pending.fill('\0');
    }
    for (; size_t(end - next) >= blockSize; next += blockSize)
        mix(next);
    std::memcpy(pending.data(), next, size_t(end - next));
}

bool ContentHash::operator==(const ContentHash& other) const {
    return bytes == other.bytes && lanes == other.lanes && pending == other.pending;
}
