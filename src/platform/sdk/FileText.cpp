#include "platform/sdk/FileText.h"

#include <QTextCodec>

#include <algorithm>

static bool isForbiddenControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 && code != '\t' && code != '\n' && code != '\r';
}

static bool isAscii(const QByteArray& text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// Whether `text` is what `unicode` gives in the local encoding and the other way round.
static bool agree(const QByteArray& text, const QString& unicode) {
    const QTextCodec* codec = QTextCodec::codecForLocale();
    return codec->fromUnicode(unicode) == text && codec->toUnicode(text) == unicode;
}

static bool isPlainCharacter(char character) {
    return character >= ' ' && character <= '~' && character != '&' && character != '<' && character != '>' &&
           character != '"';
}

bool FileText::isPlain(const char* text) {
    while (isPlainCharacter(*text))
        ++text;
    return *text == '\0';
}

bool FileText::isPlain(const char* begin, const char* end) {
    return std::all_of(begin, end, isPlainCharacter);
}

std::optional<QByteArray> FileText::toUtf8(const QByteArray& text) {
    if (std::any_of(text.begin(), text.end(), isForbiddenControl))
        return std::nullopt;
    if (isAscii(text))
        return text;
    const QString unicode = QTextCodec::codecForLocale()->toUnicode(text);
    // These two are no characters in XML.
    if (!agree(text, unicode) || unicode.contains(QChar(0xFFFE)) || unicode.contains(QChar(0xFFFF)))
        return std::nullopt;
    return unicode.toUtf8();
}

std::optional<QByteArray> FileText::fromUtf8(const QByteArray& utf8) {
    if (isAscii(utf8))
        return utf8;
    const QString unicode = QString::fromUtf8(utf8);
    const QByteArray text = QTextCodec::codecForLocale()->fromUnicode(unicode);
    if (!agree(text, unicode) || unicode.toUtf8() != utf8)
        return std::nullopt;
    return text;
}

QByteArray FileText::escaped(const QByteArray& utf8) {
    QByteArray xml;
    xml.reserve(utf8.size());
    for (const char byte : utf8) {
        switch (byte) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '"':
            xml += "&quot;";
            break;
        case '\t':
        case '\n':
        case '\r':
            xml += "&#" + QByteArray::number(byte) + ';';
            break;
        default:
            xml += byte;
        }
    }
    return xml;
}
