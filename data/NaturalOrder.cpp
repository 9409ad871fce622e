#include "NaturalOrder.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>

namespace {

int romanValue(const QString& word) {
    const auto digit = [](QChar letter) { return letter == 'X' ? 10 : letter == 'V' ? 5 : 1; };
    int value = 0;
    for (int i = 0; i < word.size(); ++i) {
        const bool subtracted = i + 1 < word.size() && digit(word[i]) < digit(word[i + 1]);
        value += subtracted ? -digit(word[i]) : digit(word[i]);
    }
    return value;
}

/// `text` with every number padded to the same width, so that comparing letters compares numbers.
QString sortKey(const QString& text) {
    static const QRegularExpression number(QStringLiteral("\\d+|\\b[IVX]+\\b"));
    QString key;
    int end = 0;
    for (auto matches = number.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString word = match.captured();
        const int value = word[0].isDigit() ? word.toInt() : romanValue(word);
        key += text.midRef(end, match.capturedStart() - end) + QString::number(value).rightJustified(10, '0');
        end = match.capturedEnd();
    }
    return key + text.midRef(end);
}

} // namespace

bool naturalLess(const QString& left, const QString& right) {
    return sortKey(left) < sortKey(right);
}
