#include "panel/record/NumberText.h"

#include "catalogue/IDictionary.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

bool NumberText::parse(const QString& text, double* number, QString* plain) {
    static const QRegularExpression form("^[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?$");
    QString candidate = text.trimmed().replace(QChar(0x2212), '-'); // the typographic minus sign
    bool isNumber = form.match(candidate).hasMatch();
    const double value = isNumber ? candidate.toDouble(&isNumber) : 0.0;
    if (!isNumber || !std::isfinite(value))
        return false;
    if (candidate.startsWith('+'))
        candidate.remove(0, 1);
    *number = value;
    *plain = candidate;
    return true;
}

QString NumberText::shortest(double number) {
    const double size = std::fabs(number);
    const bool legible = size == 0.0 || (size > 1e-15 && size < 1e16);
    return QString::number(number, legible ? 'f' : 'g', QLocale::FloatingPointShortest);
}

QString NumberText::ofRecord(const IDictionary& record, const char* key) {
    double number;
    if (record.getNumber(key, &number))
        return shortest(number);
    static const QRegularExpression sixDecimals("^-?[0-9]+\\.[0-9]{6}$");
    static const QRegularExpression trailingZeros("\\.?0*$");
    QString text = QString::fromLocal8Bit(record.getValue(key)).trimmed();
    if (sixDecimals.match(text).hasMatch())
        text.remove(trailingZeros);
    return text;
}
