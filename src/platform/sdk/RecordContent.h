#pragma once

#include "catalogue/DictionaryGuard.h"
#include "platform/sdk/UnknownXml.h"

#include <QHash>

/// What a record's element holds.
struct RecordContent {
    /// Reads the element. False when a value can't be understood, or there is text between the values: a value that
    /// lost its "<". The record is then not to be shown without it, as if it were complete.
    bool read(const pugi::xml_node& element);

    DictionaryGuard values;
    UnknownXml unknown;
    QHash<QByteArray, UnknownXml> unknownOfValues; ///< by the value's key

private:
    bool readValue(const pugi::xml_node& element);
};
