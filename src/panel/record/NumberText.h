#pragma once

#include <QCoreApplication>
#include <QString>

class IDictionary;

/// Numbers as the user types and reads them: digits with a decimal point, whatever the system's language.
class NumberText {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// Reads a decimal number ("500000", "-0.5", ".5", "1e6"; blanks around it are allowed). Digits before the decimal
    /// point may stand in groups of three: "1 000 000.5" (with any kind of blank), "1'000'000", "1,000,000". Where a
    /// comma could be a decimal comma ("45,500": one comma and no point) it is none of these and the text no number;
    /// nor are "nan", "inf" and hexadecimal. `plain` receives the text without blanks, groups and "+", its digits as
    /// typed. False leaves both untouched.
    static bool parse(const QString& text, double* number, QString* plain);

    /// The same for a text that is typed into a field: there a comma is the decimal one where it can be nothing else,
    /// as in "45,5", "0,999", "500000,123" and "1.234,567". "45,500" could be either number and is none.
    static bool parseTyped(const QString& text, double* number, QString* plain);

    /// Why a typed text is no number, translated.
    static QString refusal(const QString& text);

    /// The shortest decimal text that reads back as exactly `number`; without an exponent where that is legible.
    static QString shortest(double number);

    /// The number rounded to `decimals` decimals, without trailing zeros.
    static QString rounded(double number, int decimals);

    /// The value of `key` with all its digits: the number behind the text, else the text itself (without the trailing
    /// zeros of a "%f"). Empty when the key is absent.
    static QString ofRecord(const IDictionary& record, const char* key);

    /// The number with the fewest digits that `convert` turns into `stored`, give or take `tolerance`, among the
    /// roundings of `approximate`; `approximate` itself when none does. It undoes the noise of converting there and
    /// back.
    template <typename Convert>
    static double fewestDigits(double approximate, double stored, double tolerance, Convert convert);
};

template <typename Convert>
double NumberText::fewestDigits(double approximate, double stored, double tolerance, Convert convert) {
    for (int digits = 1; digits < 17; ++digits) {
        const double candidate = QString::number(approximate, 'g', digits).toDouble();
        const double difference = convert(candidate) - stored;
        if (difference >= -tolerance && difference <= tolerance)
            return candidate;
    }
    return approximate;
}
