#include "platform/utility/Dictionary.h"

#include "catalogue/Dictionary.h"
#include "platform/utility/FormatText.h"

#include <QList>

#include <array>
#include <cstring>

static constexpr size_t usualCount = 26; // keys of a whole parameter record
static constexpr size_t hashedCount = 100;
static constexpr int searchesBeforeHash = 10; // else removing many keys would make it anew for each

int Dictionary::alive = 0;

Dictionary::Dictionary() {
    ++alive;
    entries.reserve(usualCount);
}

Dictionary::~Dictionary() {
    --alive;
}

int Dictionary::aliveCount() {
    return alive;
}

void Dictionary::clear() {
    entries.clear();
    dropPlaces();
}

bool Dictionary::hasPlaces() const {
    if (places.isEmpty() && entries.size() > hashedCount && ++searches > searchesBeforeHash) {
        for (size_t i = 0; i < entries.size(); ++i)
            places.insert(entries[i].key, i);
    }
    return !places.isEmpty();
}

void Dictionary::dropPlaces() {
    places.clear();
    searches = 0;
}

const Dictionary::Entry* Dictionary::find(const char* key) const {
    if (!key)
        return nullptr;
    const size_t size = std::strlen(key);
    if (hasPlaces()) {
        const auto found = places.constFind(QByteArray::fromRawData(key, int(size)));
        return found == places.constEnd() ? nullptr : &entries[*found];
    }
    for (const Entry& entry : entries) {
        if (size_t(entry.key.size()) == size && std::memcmp(entry.key.constData(), key, size) == 0)
            return &entry;
    }
    return nullptr;
}

const char* Dictionary::getValue(const char* key) const {
    const Entry* entry = find(key);
    return entry ? entry->text.constData() : nullptr;
}

int Dictionary::count() const {
    return int(entries.size());
}

const char* Dictionary::getKey(int index) const {
    return index >= 0 && index < count() ? entries[size_t(index)].key.constData() : nullptr;
}

bool Dictionary::getNumber(const char* key, double* number) const {
    const Entry* entry = find(key);
    if (!entry || !entry->hasNumber() || !number)
        return false;
    *number = entry->number;
    return true;
}

void Dictionary::setText(const char* key, const char* text) {
    setNumber(key, text, noNumber);
}

void Dictionary::setNumber(const char* key, const char* text, double number) {
    if (!key)
        return;
    if (!std::isfinite(number))
        number = noNumber;
    if (const Entry* found = find(key)) {
        Entry& entry = entries[size_t(found - entries.data())];
        entry.text = QByteArray(text); // a new array first: the text may be this entry's own
        entry.number = number;
    } else {
        append(key, text, number);
    }
}

/// The records of a catalogue have the same keys in the same order, and mostly the texts of the record before. They
/// share both: a catalogue then needs hardly more memory than its file has bytes, and loads in three quarters of the
/// time.
void Dictionary::append(const char* key, const char* text, double number) {
    static std::array<Entry, usualCount> lastAppended; // by place
    if (entries.size() >= usualCount) {
        entries.push_back({QByteArray(key), QByteArray(text), number});
        if (!places.isEmpty())
            places.insert(entries.back().key, entries.size() - 1);
        return;
    }
    Entry& last = lastAppended[entries.size()];
    if (last.key != key)
        last.key = QByteArray(key);
    if (last.text != text)
        last.text = QByteArray(text);
    entries.push_back({last.key, last.text, number});
}

void Dictionary::remove(const char* key) {
    if (const Entry* entry = find(key)) {
        entries.erase(entries.begin() + (entry - entries.data()));
        dropPlaces();
    }
}

IDictionary* dictionary_get_instance(int) {
    return new Dictionary;
}

void dictionary_release_instance(IDictionary** dictionary) {
    if (!dictionary)
        return;
    delete static_cast<Dictionary*>(*dictionary);
    *dictionary = nullptr;
}

static void copyKey(IDictionary* destination, const IDictionary* source, const char* key) {
    const char* text = source->getValue(key);
    if (!text)
        return;
    double number;
    if (source->getNumber(key, &number))
        destination->setNumber(key, text, number);
    else
        destination->setText(key, text);
}

void dictionary_copy(IDictionary* destination, const IDictionary* source, const char* keys, char separator) {
    if (!destination || !source || !keys)
        return;
    const QList<QByteArray> list = QByteArray(keys).split(separator);
    for (const QByteArray& key : list) {
        if (!key.isEmpty())
            copyKey(destination, source, key.constData());
    }
}

void dictionary_assign(IDictionary* destination, const IDictionary* source) {
    if (!destination || !source || destination == source)
        return;
    destination->clear();
    for (int i = 0; i < source->count(); ++i)
        copyKey(destination, source, source->getKey(i));
}

/// Whether `format` is one floating-point conversion and nothing else; then `number` is the value it converts.
static bool takesOneNumber(const char* format, va_list arguments, double* number) {
    if (*format++ != '%')
        return false;
    // Flags, width and precision; a "*" takes an argument of its own before the number.
    for (; *format && std::strchr("-+ #0123456789.*", *format); ++format) {
        if (*format == '*')
            va_arg(arguments, int);
    }
    const bool isLong = *format == 'L';
    if (isLong)
        ++format;
    if (!*format || !std::strchr("fFeEgGaA", *format) || format[1])
        return false;
    *number = isLong ? double(va_arg(arguments, long double)) : va_arg(arguments, double);
    return true;
}

void dic_set_value(IDictionary* dictionary, const char* key, const char* format, ...) {
    if (!dictionary || !format)
        return;
    va_list arguments;
    va_start(arguments, format);
    va_list peeked;
    va_copy(peeked, arguments);
    double number;
    const bool isNumber = takesOneNumber(format, peeked, &number);
    va_end(peeked);
    const QByteArray text = formatText(format, arguments);
    va_end(arguments);

    if (isNumber)
        dictionary->setNumber(key, text.constData(), number);
    else
        dictionary->setText(key, text.constData());
}

double dictionary_number(const IDictionary& dictionary, const char* key, double fallback) {
    double number;
    if (dictionary.getNumber(key, &number))
        return number;
    bool isNumber = false;
    number = QByteArray(dictionary.getValue(key)).trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : fallback;
}

int dictionary_alive_count() {
    return Dictionary::aliveCount();
}
