#pragma once

#include <QByteArray>

/// What the elements and attributes of the catalogue's files are called, and how their lines look.
namespace FileFormat {

constexpr int version = 1;
constexpr const char* declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr const char* groupElement = "group";
constexpr const char* valueElement = "value";
constexpr const char* versionAttribute = "version";
constexpr const char* nameAttribute = "name";
constexpr const char* keyAttribute = "key";
constexpr const char* textAttribute = "text";
constexpr const char* numberAttribute = "number";
constexpr const char* encodedSuffix = "_encoded";
constexpr const char* indent = "  "; ///< of an element in another

inline QByteArray startOf(const char* element) {
    return QByteArray("<") + element + ">\n";
}

inline QByteArray endOf(const char* element) {
    return QByteArray("</") + element + ">\n";
}

} // namespace FileFormat
