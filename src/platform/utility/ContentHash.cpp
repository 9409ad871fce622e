#include "platform/utility/ContentHash.h"

#include "platform/utility/ContentHasher.h"

static ContentHash hashOf(const QByteArray& content) {
    ContentHasher hasher;
    hasher.add(content);
    return hasher.hash();
}

ContentHash::ContentHash(const QByteArray& content) : ContentHash(hashOf(content)) {
}

QByteArray ContentHash::toHex() const {
    const auto digits = [](quint64 half) { return QByteArray::number(half, 16).rightJustified(16, '0'); };
    return digits(high) + digits(low);
}

bool ContentHash::operator==(const ContentHash& other) const {
    return bytes == other.bytes && high == other.high && low == other.low;
}
