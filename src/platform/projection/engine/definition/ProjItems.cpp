#include "platform/projection/engine/definition/ProjItems.h"

#include "catalogue/Angle.h"

#include <cmath>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
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
    const char* const text = definition.constData();
    int position = 0;
    const auto skipBlanks = [&] {
        while (position < definition.size() && isBlank(text[position]))
            ++position;
    };
    const auto takeWord = [&](bool isKey) {
        const int start = position;
        while (position < definition.size() && !isBlank(text[position]) && !(isKey && text[position] == '='))
            ++position;
        return QByteArray(text + start, position - start);
    };
    for (skipBlanks(); position < definition.size(); skipBlanks()) {
        if (text[position] == '+') {
            ++position;
            continue;
        }
        Item item{takeWord(true), {}};
        const int end = position;
        skipBlanks();
        if (position < definition.size() && text[position] == '=') {
            ++position;
            skipBlanks();
            item.value = takeWord(false);
        } else {
            position = end;
        }
        items.append(item);
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
        return Angle::toDegrees(toNumber(rest.chopped(1)));
    bool negative = takeHemisphere(rest);
    if (rest.startsWith('-') || rest.startsWith('+')) {
        negative = negative != rest.startsWith('-');
        rest.remove(0, 1);
    }
    // Degrees, minutes and seconds, each with its sign behind it; the last may go without, as in 2d30 or 7.5W.
    double angle = 0;
    double unit = 1;
    for (const char sign : {'d', '\'', '"'}) {
        const int end = rest.indexOf(sign);
        if (end >= 0 || !rest.isEmpty())
            angle += toNumber(end < 0 ? rest : rest.left(end)) * unit;
        rest = end < 0 ? QByteArray() : rest.mid(end + 1);
        unit /= 60;
    }
    return rest.isEmpty() && !text.isEmpty() ? (negative ? -angle : angle) : notANumber;
}
