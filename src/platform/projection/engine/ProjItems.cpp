#include "platform/projection/engine/ProjItems.h"

#include <QByteArrayList>

#include <cmath>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double pi = 3.141592653589793;

/// Takes the number before `unit` off the front of `text`; 0 when `unit` is not in it.
double takeNumber(QByteArray& text, char unit) {
    const int end = text.indexOf(unit);
    if (end < 0)
        return 0;
    const double number = ProjItems::toNumber(text.left(end));
    text.remove(0, end + 1);
    return number;
}

/// Takes the hemisphere's letter off the end of `text`.
bool takeHemisphere(QByteArray& text) {
    const char last = text.isEmpty() ? '\0' : text[text.size() - 1];
    const bool negative = last == 'S' || last == 's' || last == 'W' || last == 'w';
    if (negative || last == 'N' || last == 'n' || last == 'E' || last == 'e')
        text.chop(1);
    return negative;
}

} // namespace

ProjItems::ProjItems(const QByteArray& definition) {
    QByteArray text = definition.simplified();
    text.replace(" =", "=").replace("= ", "=");
    for (QByteArray token : text.split(' ')) {
        if (token.startsWith('+'))
            token.remove(0, 1);
        if (token.isEmpty())
            continue;
        const int equals = token.indexOf('=');
        if (equals < 0)
            items.append(Item{token, QByteArray()});
        else
            items.append(Item{token.left(equals), token.mid(equals + 1)});
    }
}

const ProjItems::Item* ProjItems::find(const char* key) const {
    for (const Item& item : items) {
        if (item.key == key)
            return &item;
    }
    return nullptr;
}

int ProjItems::count(const char* key) const {
    int found = 0;
    for (const Item& item : items)
        found += item.key == key;
    return found;
}

QByteArray ProjItems::text(const char* key) const {
    const Item* const item = find(key);
    return item ? item->value : QByteArray();
}

double ProjItems::number(const char* key, double fallback) const {
    const Item* const item = find(key);
    return item ? toNumber(item->value) : fallback;
}

double ProjItems::angle(const char* key, double fallback) const {
    const Item* const item = find(key);
    return item ? toAngle(item->value) : fallback;
}

double ProjItems::toNumber(const QByteArray& text) {
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(number) ? number : notANumber;
}

double ProjItems::toAngle(const QByteArray& text) {
    QByteArray rest = text;
    const double plain = toNumber(rest);
    if (!std::isnan(plain))
        return plain;
    if (rest.endsWith('r') || rest.endsWith('R'))
        return toNumber(rest.chopped(1)) / pi * 180;
    bool negative = takeHemisphere(rest);
    if (rest.startsWith('-') || rest.startsWith('+')) {
        negative = negative != rest.startsWith('-');
        rest.remove(0, 1);
    }
    const double degrees = takeNumber(rest, 'd');
    const double minutes = takeNumber(rest, '\'');
    const double seconds = takeNumber(rest, '"');
    // Decimal degrees with a letter, 7.5W, are what no unit has taken.
    const double plainDegrees = rest.isEmpty() ? 0 : toNumber(rest);
    const double angle = degrees + minutes / 60 + seconds / 3600 + plainDegrees;
    return negative ? -angle : angle;
}
