#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace pugi {
class xml_attribute;
class xml_node;
} // namespace pugi

/// What an element of a file holds beyond what this version understands, as XML. It is written back as it was read.
struct UnknownXml {
    QByteArray attributes; ///< each with a blank before it
    QByteArrayList children;

    bool isEmpty() const { return attributes.isEmpty() && children.isEmpty(); }

    void keep(const pugi::xml_attribute& attribute);
    /// A blank text is not kept: between the elements that this version knows it only sets them apart.
    void keep(const pugi::xml_node& child);

    static bool isBlank(const pugi::xml_node& node);

    /// The node as XML that reads the same again.
    static QByteArray xmlOf(pugi::xml_node node);
};
