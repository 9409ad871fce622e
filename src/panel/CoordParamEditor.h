#pragma once

#include "catalogue/DictionaryGuard.h"

class QByteArray;

/// Edits one parameter record. A change of one key also changes the keys that depend on it by definition, and no other.
class CoordParamEditor {
public:
    const IDictionary& record() const { return *values; }

    /// Starts over with a copy of `record`.
    void setRecord(const IDictionary& record);

    /// Sets `key` to `text`.
    void setValue(const char* key, const QByteArray& text);

    /// Takes over every key of `source`, with the numbers behind the texts; the record's other keys stay. When `source`
    /// says which datum shift there is ("_7type"), shift keys that it lacks are removed.
    void replaceValues(const IDictionary& source);

private:
    DictionaryGuard values;
};
