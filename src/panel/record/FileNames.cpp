#include "panel/record/FileNames.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

constexpr int longest = 150; // bytes in UTF-8

/// Names that are equal here would be one file on some disk: Windows and macOS ignore case, macOS composition as well.
QString compared(const QString& name) {
    return name.toCaseFolded().normalized(QString::NormalizationForm_C);
}

QString withoutEnd(QString name) {
    while (name.endsWith('.') || name.endsWith(' '))
        name.chop(1);
    return name;
}

/// As many whole letters of `name`, with their accents, as `bytes` hold.
QString shortened(const QString& name, int bytes) {
    if (name.toUtf8().size() <= bytes)
        return name;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, name);
    int end = 0;
    for (int next = 0; next >= 0 && name.left(next).toUtf8().size() <= bytes; next = int(letters.toNextBoundary()))
        end = next;
    return withoutEnd(name.left(end));
}

/// Windows takes these for devices, whatever follows behind a dot.
bool isDevice(const QString& name) {
    static const QRegularExpression devices(
        QString::fromUtf8("^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|CLOCK\\$|(COM|LPT)[0-9¹²³]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

QString safe(const QString& name) {
    static const QString forbidden = QStringLiteral("<>:\"/\\|?*");
    QString result = name.simplified();
    std::replace_if(
        result.begin(), result.end(),
        [](QChar c) { return c.category() == QChar::Other_Control || forbidden.contains(c); }, QChar('_'));
    result = withoutEnd(result);
    if (result.startsWith('.')) // hidden elsewhere
        result[0] = '_';
    return result.isEmpty() || isDevice(result) ? '_' + result : result;
}

} // namespace

QString FileNames::add(const QString& name) {
    const int room = longest - suffix.toUtf8().size();
    QString stem = shortened(safe(name), room);
    if (stem.isEmpty()) // one letter under a heap of accents
        stem = '_';
    const QString key = compared(stem);
    if (!taken.contains(key)) {
        taken.insert(key);
        return stem + suffix;
    }
    QString unique;
    int& number = numbers.insert(key, numbers.value(key, 1)).value();
    do {
        const QString tail = QStringLiteral(" (%1)").arg(++number);
        unique = shortened(stem, room - tail.size()) + tail;
    } while (taken.contains(compared(unique)));
    taken.insert(compared(unique));
    return unique + suffix;
}
