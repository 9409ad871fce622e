#include "panel/record/NumberText.h"

#include "catalogue/IDictionary.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

/// The text without what groups its digits; unchanged where that is no grouping, or could be a decimal comma.
QString withoutGroups(const QString& text) {
    static const QRegularExpression blankOrApostrophe(
        "^[+-]?[0-9]{1,3}(?<mark>[ '\\x{00A0}\\x{2007}\\x{2009}\\x{202F}\\x{2019}])[0-9]{3}"
        "(?:\\k<mark>[0-9]{3})*(?:\\.[0-9]*)?$");
    static const QRegularExpression comma("^[+-]?[0-9]{1,3}(?:,[0-9]{3})+(?:,[0-9]{3}|\\.[0-9]*)$");
    QRegularExpressionMatch match = blankOrApostrophe.match(text);
    if (match.hasMatch())
        return QString(text).remove(match.captured("mark"));
    return comma.match(text).hasMatch() ? QString(text).remove(',') : text;
}

/// Whether its comma could part thousands as well as decimals.
bool isAmbiguous(const QString& text) {
    static const QRegularExpression form("^[+-]?[1-9][0-9]{0,2},[0-9]{3}(?:[eE][+-]?[0-9]+)?$");
    return form.match(text).hasMatch();
}

/// With a decimal point in place of a decimal comma; unchanged where there is none.
QString withDecimalPoint(const QString& text) {
    static const QRegularExpression form(
        "^(?<whole>[+-]?(?:[0-9]*|[0-9]{1,3}(?<mark>[ .'\\x{00A0}\\x{2007}\\x{2009}\\x{202F}\\x{2019}])[0-9]{3}"
        "(?:\\k<mark>[0-9]{3})*)),(?<rest>[0-9]*(?:[eE][+-]?[0-9]+)?)$");
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch() || isAmbiguous(text))
        return text;
    QString whole = match.captured("whole");
    if (!match.captured("mark").isEmpty())
        whole.remove(match.captured("mark"));
    return whole + '.' + match.captured("rest");
}

/// With a minus sign that C++ knows, too.
QString trimmed(const QString& text) {
    return text.trimmed().replace(QChar(0x2212), '-');
}

} // namespace

bool NumberText::parseTyped(const QString& text, double* number, QString* plain) {
    return parse(withDecimalPoint(trimmed(text)), number, plain);
}

QString NumberText::refusal(const QString& text) {
    if (isAmbiguous(trimmed(text)))
        return tr("This comma could part thousands: use a decimal point.");
    return text.contains(',') ? tr("Use a decimal point, not a comma.") : tr("Only digits and a decimal point.");
}

bool NumberText::parse(const QString& text, double* number, QString* plain) {
    static const QRegularExpression form("^[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?$");
    QString candidate = withoutGroups(trimmed(text));
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

QString NumberText::rounded(double number, int decimals) {
    static const QRegularExpression trailingZeros("\\.?0*$");
    const QString text = QString::number(number, 'f', decimals);
    const QString plain = text.contains('.') ? QString(text).remove(trailingZeros) : text;
    return plain == "-0" ? "0" : plain;
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
