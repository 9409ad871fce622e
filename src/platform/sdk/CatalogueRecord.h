#pragma once

#include "catalogue/DictionaryGuard.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>

/// What an element of a file holds beyond what this version understands, as XML. It is written back as it was read.
struct UnknownXml {
    QByteArray attributes; ///< each with a blank before it
    QByteArrayList children;

    bool isEmpty() const { return attributes.isEmpty() && children.isEmpty(); }
};

/// One coordinate system, ellipsoid or geoid of the catalogue.
struct CatalogueRecord {
    QByteArray name;
    DictionaryGuard values;
    UnknownXml unknown;
    QHash<QByteArray, UnknownXml> unknownOfValues; ///< by the value's key
};
