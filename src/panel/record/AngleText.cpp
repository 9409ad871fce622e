#include "panel/record/AngleText.h"

#include "panel/record/NumberText.h"

#include <QRegularExpression>

#include <cmath>

AngleNotation AngleText::chosenNotation = AngleNotation::DecimalDegrees;

namespace {

constexpr int shownDecimals = 12;

/// 45°30m15s with signs in place of its letters. Left as it is where the "s" could also stand for south.
QString withoutMinuteLetter(QString text) {
    static const QRegularExpression minutes("(?<=[0-9.]) ?M(?: ?(?<s>[0-9.]+)(?<mark> ?S)?)?");
    const QRegularExpressionMatch match = minutes.match(text);
    const QString mark = match.captured("mark");
    if (!match.hasMatch() || mark.startsWith(' '))
        return text;
    return text.replace(match.capturedStart(), match.capturedLength(),
                        "'" + match.captured("s") + (mark.isEmpty() ? "" : "\""));
}

/// The usual signs for degrees, minutes, seconds and minus, each brought to one form.
QString unified(const QString& text) {
    static const QRegularExpression minus("[\\x{2212}\\x{2013}]");
    static const QRegularExpression degree("[\\x{00BA}\\x{02DA}]|deg|d", QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression second("[\\x{2033}\\x{201C}\\x{201D}]|''|\\x{2032}\\x{2032}|\\x{2019}\\x{2019}");
    static const QRegularExpression minute("[\\x{2032}\\x{2018}\\x{2019}\\x{00B4}`]");
    QString result = text.simplified().toUpper();
    result.replace(degree, QString(QChar(0x00B0)));
    return withoutMinuteLetter(result.replace(minus, "-").replace(second, "\"").replace(minute, "'"));
}

AngleInput refused(const QString& reason) {
    AngleInput input;
    input.reason = reason;
    return input;
}

} // namespace

QString AngleText::letterMisfit(const QString& letter, AngleRole role) {
    const bool isNorthSouth = letter == "N" || letter == "S";
    if (letter.isEmpty() || (role == AngleRole::Latitude && isNorthSouth) ||
        (role == AngleRole::Longitude && !isNorthSouth))
        return QString();
    if (role == AngleRole::Latitude)
        return tr("A latitude goes with N or S.");
    return role == AngleRole::Longitude ? tr("A longitude goes with E or W.") : tr("An azimuth goes without a letter.");
}

AngleInput AngleText::parseUnified(const QString& text, AngleRole role) {
    static const QString number("[0-9]+\\.?[0-9]*|\\.[0-9]+");
    static const QRegularExpression form(
        QString("^(?<before>[NSEW])? ?(?<sign>[+-])? ?(?<d>%1)"
                "(?:(?: ?° ?| ?: ?|-| )(?<m>%1)(?:(?: ?' ?| ?: ?|-| )(?<s>%1) ?\"?| ?'?)| ?°?) ?(?<after>[NSEW])?$")
            .arg(number));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return refused(text.contains(',') ? tr("Use a decimal point, not a comma.")
                                          : tr("Not an angle. Examples: 7.5, 7 30 00, 7°30'00\"."));

    const QString degrees = match.captured("d"), minutes = match.captured("m"), seconds = match.captured("s");
    if ((!minutes.isEmpty() && degrees.contains('.')) || (!seconds.isEmpty() && minutes.contains('.')))
        return refused(tr("Only the last part may have decimals."));
    if (minutes.toDouble() >= 60.0)
        return refused(tr("Minutes must be less than 60."));
    if (seconds.toDouble() >= 60.0)
        return refused(tr("Seconds must be less than 60."));

    const QString before = match.captured("before"), after = match.captured("after"), sign = match.captured("sign");
    if (int(!before.isEmpty()) + int(!after.isEmpty()) + int(!sign.isEmpty()) > 1)
        return refused(tr("Give either a sign or a letter."));
    const QString letter = before + after;
    const QString misfit = letterMisfit(letter, role);
    if (!misfit.isEmpty())
        return refused(misfit);

    AngleInput input;
    const bool negative = sign == "-" || letter == "S" || letter == "W";
    const double size = degrees.toDouble() + (minutes.toDouble() * 60.0 + seconds.toDouble()) / 3600.0;
    if (!std::isfinite(size))
        return refused(tr("Not an angle. Examples: 7.5, 7 30 00, 7°30'00\"."));
    input.valid = true;
    input.degrees = negative ? -size : size;
    input.decimal = (negative ? "-" : "") + (minutes.isEmpty() ? degrees : NumberText::shortest(size));
    return input;
}

AngleInput AngleText::parse(const QString& text, AngleRole role) {
    return parseUnified(unified(text), role);
}

AngleInput AngleText::parseTyped(const QString& text, AngleRole role) {
    static const QRegularExpression within("(?<=[0-9]),(?! )|(?<![0-9 ]),(?=[0-9])");
    const bool isDecimal = text.count(',') == 1 && !text.contains('.');
    return parse(isDecimal ? QString(text).replace(within, ".") : text, role);
}

QString AngleText::format(double degrees, AngleNotation notation) {
    // Beyond a few turns it is no angle, and its units would not fit the integer below.
    if (!(std::fabs(degrees) < 1e4))
        return NumberText::shortest(degrees);
    if (notation == AngleNotation::DecimalDegrees)
        return NumberText::rounded(degrees, shownDecimals);
    constexpr qint64 unitsPerSecond = 100000000;
    const qint64 units = std::llround(std::fabs(degrees) * 3600.0 * double(unitsPerSecond));
    const qint64 seconds = units / unitsPerSecond;
    QString text = QString("%1°%2'%3")
                       .arg(seconds / 3600)
                       .arg(seconds / 60 % 60, 2, 10, QChar('0'))
                       .arg(seconds % 60, 2, 10, QChar('0'));
    if (const qint64 fraction = units % unitsPerSecond) {
        QString digits = QString("%1").arg(fraction, 8, 10, QChar('0'));
        while (digits.endsWith('0'))
            digits.chop(1);
        text += '.' + digits;
    }
    return (std::signbit(degrees) && units != 0 ? "-" : "") + text + '"';
}

QString AngleText::rounded(double degrees, int decimals) {
    const double steps =
        notation() == AngleNotation::DecimalDegrees ? std::pow(10.0, decimals) : 3600.0 * std::pow(10.0, decimals - 4);
    return format(std::round(degrees * steps) / steps + 0.0, notation());
}

QString AngleText::withoutNoise(const QString& decimal) {
    const int point = decimal.indexOf('.');
    return point >= 0 && decimal.size() - point - 1 > shownDecimals
               ? format(decimal.toDouble(), AngleNotation::DecimalDegrees)
               : decimal;
}
