#include "platform/projection/engine/wkt/PlainName.h"

QByteArray plainName(const QByteArray& name) {
    QByteArray plain;
    plain.reserve(name.size());
    for (const char c : name) {
        const bool isSign = c >= 0 && !(c >= '0' && c <= '9') && !(c >= 'A' && c <= 'Z') && !(c >= 'a' && c <= 'z');
        if (!isSign)
            plain += c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
    }
    return plain;
}
