#pragma once

#include <QByteArray>

#include <optional>

/// How texts in the local 8-bit encoding stand in the catalogue's files, which are XML 1.0 in UTF-8.
///
/// Not every text is possible there: XML forbids most control characters, and a text may hold bytes that mean nothing
/// in the local encoding. Such a text is written percent-encoded (RFC 3986, its bytes in the local encoding) under
/// another attribute's name.
namespace FileText {

/// Whether `text` is the same in every encoding and in XML: printable ASCII without markup. Nearly all texts are.
bool isPlain(const char* text);
bool isPlain(const char* begin, const char* end);

/// `text` in UTF-8; nothing when it has to be percent-encoded.
std::optional<QByteArray> toUtf8(const QByteArray& text);

/// `utf8` in the local encoding; nothing when that can't express it.
std::optional<QByteArray> fromUtf8(const QByteArray& utf8);

/// `utf8` as it stands between the double quotes of an XML attribute; line breaks and tabs stay what they are.
QByteArray escaped(const QByteArray& utf8);

} // namespace FileText
