#include "import/WktFile.h"

#include "catalogue/OlderEncoding.h"
#include "import/WktToCoordParam.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>

namespace {

/// GDAL takes no WKT of more than 100,000 bytes, so no more is read, however large the file. The rest are blanks around
/// it.
constexpr qint64 longestText = qint64{1024} * 1024;

bool isUtf8(const QByteArray& text) {
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

/// GBK, Big5, Shift-JIS, EUC-KR and their like.
bool isDoubleByte(const QTextCodec* codec) {
    constexpr QChar inAll(0x4E00);
    return codec->fromUnicode(QString(inAll)).size() == 2;
}

/// Whether the letters of a text in UTF-8 beyond ASCII have two bytes each. Pairs of Chinese or Korean letters in a
/// double-byte encoding can look so, and nobody there writes the Latin, Greek and Cyrillic letters that they would be.
bool hasPairsOnly(const QByteArray& text) {
    constexpr unsigned char firstOfThree = 0xE0;
    const auto isFrom = [](unsigned char least) {
        return [least](char c) { return static_cast<unsigned char>(c) >= least; };
    };
    return std::any_of(text.begin(), text.end(), isFrom(0x80)) &&
           std::none_of(text.begin(), text.end(), isFrom(firstOfThree));
}

/// Text without a byte-order mark, in UTF-8.
QByteArray toUtf8(const QByteArray& text) {
    const QTextCodec* const local = QTextCodec::codecForLocale();
    const bool isLocalUtf8 = local->mibEnum() == QTextCodec::codecForName("UTF-8")->mibEnum();
    const QTextCodec* const other = isLocalUtf8 ? olderEncoding() : local;
    if (!isUtf8(text))
        return other->toUnicode(text).toUtf8();
    if (!isDoubleByte(other) || !hasPairsOnly(text))
        return text;
    const QString pairs = other->toUnicode(text);
    return pairs.contains(QChar::ReplacementCharacter) ? text : pairs.toUtf8();
}

template <typename Text> Text upToNul(Text text) {
    const int nul = text.indexOf('\0');
    return nul < 0 ? text : text.left(nul);
}

/// The file's text in UTF-8.
QByteArray readText(QFile& file) {
    constexpr int longestMark = 4;
    const QTextCodec* const codec = QTextCodec::codecForUtfText(file.peek(longestMark), nullptr);
    // Reading as text takes the bytes of carriage returns out, also where they are half a letter.
    file.setTextModeEnabled(!codec);
    const QByteArray bytes = file.read(std::min(file.size(), longestText));
    if (!codec)
        return toUtf8(upToNul(bytes));
    return upToNul(codec->toUnicode(bytes)).remove('\r').toUtf8();
}

} // namespace

WktSystem WktFile::read(const QString& path) {
    QFile file(path);
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {WktSystem::Content::NotOpened, {}, {}};
    return WktToCoordParam::read(readText(file).trimmed());
}
