#include "panel/computing/PointNumber.h"

#include "catalogue/OlderEncoding.h"
#include "panel/record/NumberText.h"

#include <QTextCodec>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

/// A number that is nothing but digits, a sign, a point and an exponent.
bool readPlain(std::string_view text, double* number) {
    if (!text.empty() && text.front() == '+' && text.find('-') == std::string_view::npos)
        text.remove_prefix(1);
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) // it reads "inf" and "nan", too
        return false;
    *number = value;
    return true;
}

QString toText(std::string_view text) {
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader); // a byte-order mark amid a text is one of its letters
    const QString utf8 = QTextCodec::codecForName("UTF-8")->toUnicode(text.data(), int(text.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0
               ? utf8
               : olderText(QByteArray::fromRawData(text.data(), int(text.size())));
}

/// With the point as decimal mark, and commas where points grouped digits.
QString withPoint(QString text) {
    for (QChar& c : text)
        c = c == ',' ? '.' : c == '.' ? ',' : c;
    return text;
}

constexpr std::size_t longest = 100; ///< no number is longer

} // namespace

bool PointNumber::read(std::string_view text, bool decimalComma, double* number) {
    if (text.empty() || text.size() > longest)
        return false;
    if ((!decimalComma || text.find('.') == std::string_view::npos) && readPlain(text, number))
        return true;
    QString plain;
    return NumberText::parse(decimalComma ? withPoint(toText(text)) : toText(text), number, &plain);
}

bool PointNumber::readAngle(std::string_view text, bool decimalComma, AngleRole role, double* degrees) {
    if (text.empty() || text.size() > longest)
        return false;
    // AngleText takes no exponents.
    if (!decimalComma && text.find_first_of("eE") == std::string_view::npos && readPlain(text, degrees))
        return true;
    const AngleInput input = AngleText::parse(decimalComma ? withPoint(toText(text)) : toText(text), role);
    if (input.valid)
        *degrees = input.degrees;
    return input.valid;
}

std::string PointNumber::toUtf8(std::string_view text) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; }))
        return std::string(text);
    return toText(text).toStdString();
}
