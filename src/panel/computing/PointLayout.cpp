#include "panel/computing/PointLayout.h"

#include "panel/computing/PointNumber.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr std::size_t linesToLookAt = 40;
constexpr std::size_t mostColumns = 100;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> linesOf(const QByteArray& head, std::size_t count) {
    std::vector<std::string_view> lines;
    std::string_view rest(head.constData(), std::size_t(head.size()));
    while (!rest.empty() && lines.size() < count) {
        const std::size_t end = rest.find_first_of("\r\n");
        const std::string_view line = rest.substr(0, end);
        if (!trimmed(line).empty())
            lines.push_back(line);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return lines;
}

struct Word {
    PointColumn column;
    const char* text;
};

/// Headings of points' columns in English, German, French, Spanish and Chinese, in small letters.
constexpr Word words[] = {
    {PointColumn::Latitude, "latitude"},
    {PointColumn::Latitude, "lat"},
    {PointColumn::Latitude, "phi"},
    {PointColumn::Latitude, "breite"},
    {PointColumn::Latitude, "geogr breite"},
    {PointColumn::Latitude, "latitud"},
    {PointColumn::Latitude, "b"},
    {PointColumn::Latitude, "φ"},
    {PointColumn::Longitude, "longitude"},
    {PointColumn::Longitude, "lon"},
    {PointColumn::Longitude, "long"},
    {PointColumn::Longitude, "lng"},
    {PointColumn::Longitude, "länge"},
    {PointColumn::Longitude, "laenge"},
    {PointColumn::Longitude, "longitud"},
    {PointColumn::Longitude, "lambda"},
    {PointColumn::Longitude, "l"},
    {PointColumn::Longitude, "λ"},
    {PointColumn::Longitude, "geogr länge"},
    {PointColumn::Height, "height"},
    {PointColumn::Height, "h"},
    {PointColumn::Height, "höhe"},
    {PointColumn::Height, "hoehe"},
    {PointColumn::Height, "elevation"},
    {PointColumn::Height, "elev"},
    {PointColumn::Height, "altitude"},
    {PointColumn::Height, "alt"},
    {PointColumn::Height, "hauteur"},
    {PointColumn::Height, "altura"},
    {PointColumn::Height, "altitud"},
    {PointColumn::Height, "z"},
    {PointColumn::Height, "ellipsoidal height"},
    {PointColumn::Height, "ell height"},
    {PointColumn::Height, "elevación"},
    {PointColumn::Height, "ellipsoidische höhe"},
    {PointColumn::Easting, "easting"},
    {PointColumn::Easting, "east"},
    {PointColumn::Easting, "e"},
    {PointColumn::Easting, "x"},
    {PointColumn::Easting, "rechtswert"},
    {PointColumn::Easting, "rechts"},
    {PointColumn::Easting, "rw"},
    {PointColumn::Easting, "ostwert"},
    {PointColumn::Easting, "ost"},
    {PointColumn::Easting, "est"},
    {PointColumn::Easting, "este"},
    {PointColumn::Easting, "abscisse"},
    {PointColumn::Northing, "northing"},
    {PointColumn::Northing, "north"},
    {PointColumn::Northing, "n"},
    {PointColumn::Northing, "y"},
    {PointColumn::Northing, "hochwert"},
    {PointColumn::Northing, "hoch"},
    {PointColumn::Northing, "hw"},
    {PointColumn::Northing, "nordwert"},
    {PointColumn::Northing, "nord"},
    {PointColumn::Northing, "norte"},
    {PointColumn::Northing, "ordonnée"},
    {PointColumn::Name, "name"},
    {PointColumn::Name, "point"},
    {PointColumn::Name, "id"},
    {PointColumn::Name, "station"},
    {PointColumn::Name, "pt"},
    {PointColumn::Name, "no"},
    {PointColumn::Name, "nr"},
    {PointColumn::Name, "number"},
    {PointColumn::Name, "punkt"},
    {PointColumn::Name, "punktnummer"},
    {PointColumn::Name, "punktnr"},
    {PointColumn::Name, "nummer"},
    {PointColumn::Name, "pktnr"},
    {PointColumn::Name, "nom"},
    {PointColumn::Name, "matricule"},
    {PointColumn::Name, "numéro"},
    {PointColumn::Name, "nombre"},
    {PointColumn::Name, "punto"},
    {PointColumn::Name, "número"},
    {PointColumn::Name, "point name"},
    {PointColumn::Name, "point id"},
    {PointColumn::Name, "station name"},
    {PointColumn::Latitude, "纬度"},
    {PointColumn::Latitude, "纬度b"},
    {PointColumn::Latitude, "大地纬度"},
    {PointColumn::Longitude, "经度"},
    {PointColumn::Longitude, "经度l"},
    {PointColumn::Longitude, "大地经度"},
    {PointColumn::Height, "高程"},
    {PointColumn::Height, "高程h"},
    {PointColumn::Height, "大地高"},
    {PointColumn::Height, "大地高h"},
    {PointColumn::Height, "椭球高"},
    {PointColumn::Height, "正常高"},
    {PointColumn::Easting, "东"},
    {PointColumn::Easting, "东坐标"},
    {PointColumn::Easting, "东坐标e"},
    {PointColumn::Easting, "东坐标y"},
    {PointColumn::Easting, "横坐标"},
    {PointColumn::Easting, "横坐标y"},
    {PointColumn::Easting, "y坐标"},
    {PointColumn::Easting, "x 东"}, // what stands in brackets decides
    {PointColumn::Easting, "y 东"},
    {PointColumn::Northing, "北"},
    {PointColumn::Northing, "北坐标"},
    {PointColumn::Northing, "北坐标n"},
    {PointColumn::Northing, "北坐标x"},
    {PointColumn::Northing, "纵坐标"},
    {PointColumn::Northing, "纵坐标x"},
    {PointColumn::Northing, "x坐标"},
    {PointColumn::Northing, "x 北"},
    {PointColumn::Northing, "y 北"},
    {PointColumn::Name, "名称"},
    {PointColumn::Name, "点名"},
    {PointColumn::Name, "点号"},
    {PointColumn::Name, "点"},
    {PointColumn::Name, "编号"},
    {PointColumn::Name, "站名"},
};

QString text(std::string_view field) {
    return QString::fromUtf8(field.data(), int(field.size()));
}

/// A heading's words in small letters, without what is no letter.
QString lettersOf(QString heading) {
    for (QChar& c : heading)
        c = c.isLetter() ? c.toLower() : ' ';
    return heading.simplified();
}

/// Without a unit in brackets.
QString withoutUnit(const QString& heading) {
    static const QRegularExpression bracket(QStringLiteral("[(\\[/（［【]"));
    const int at = heading.indexOf(bracket);
    return at > 0 ? heading.left(at) : heading;
}

/// Whether a heading has words in the letters of China's mainland, where X counts to the north and Y to the east.
/// Taiwan writes them otherwise, and counts X to the east.
bool countsXNorth(const std::vector<std::string>& headings) {
    static const QRegularExpression letters(QStringLiteral("[点标纬经编]"));
    return std::any_of(headings.begin(), headings.end(),
                       [](const std::string& heading) { return text(heading).contains(letters); });
}

PointColumn meaning(const QString& letters, bool isXNorth) {
    if (isXNorth && (letters == "x" || letters == "y"))
        return letters == "x" ? PointColumn::Northing : PointColumn::Easting;
    for (const Word& word : words) {
        if (letters == QString::fromUtf8(word.text))
            return word.column;
    }
    return PointColumn::None;
}

PointColumn meaningOf(std::string_view heading, bool isXNorth) {
    const PointColumn whole = meaning(lettersOf(text(heading)), isXNorth);
    return whole == PointColumn::None ? meaning(lettersOf(withoutUnit(text(heading))), isXNorth) : whole;
}

/// What the lines have in one column.
struct ColumnContent {
    std::size_t numbers = 0;                   ///< plain ones
    std::size_t latitudes = 0, longitudes = 0; ///< angles with minutes, or a letter that says so
    std::size_t letters = 0;                   ///< N, S, E or W alone
    bool isLatitudeLetter = false;
    std::size_t texts = 0;
    double smallest = INFINITY, largest = -INFINITY;
    bool isWhole = true;

    // What a few lines have else is their fault.
    bool isNumber() const { return numbers > texts && numbers > latitudes + longitudes; }
    bool isAngle() const { return std::max(latitudes, longitudes) > texts && !isNumber(); }
    bool isWithin(double limit) const { return smallest >= -limit && largest <= limit; }
};

ColumnContent contentOf(const std::vector<std::vector<std::string>>& lines, std::size_t column, std::size_t first,
                        bool decimalComma) {
    ColumnContent content;
    for (std::size_t i = first; i < lines.size(); ++i) {
        if (column >= lines[i].size() || lines[i][column].empty())
            continue;
        const std::string& field = lines[i][column];
        double value = 0.0;
        if (PointNumber::read(field, decimalComma, &value)) {
            ++content.numbers;
            content.smallest = std::min(content.smallest, value);
            content.largest = std::max(content.largest, value);
            content.isWhole = content.isWhole && value == std::floor(value) && field.find('.') == std::string::npos;
        } else if (field.size() == 1 && std::strchr("NSEW", field[0])) {
            ++content.letters;
            content.isLatitudeLetter = field[0] == 'N' || field[0] == 'S';
        } else {
            const bool isLatitude = PointNumber::readAngle(field, decimalComma, AngleRole::Latitude, &value);
            const bool isLongitude = PointNumber::readAngle(field, decimalComma, AngleRole::Longitude, &value);
            content.latitudes += isLatitude;
            content.longitudes += isLongitude;
            content.texts += !isLatitude && !isLongitude;
        }
    }
    return content;
}

/// Columns that end in one of N, S, E and W: all numbers before them up to three are one angle.
void guessLetters(const std::vector<ColumnContent>& contents, std::vector<PointColumn>& columns) {
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (contents[i].letters <= contents[i].texts)
            continue;
        const PointColumn kind = contents[i].isLatitudeLetter ? PointColumn::Latitude : PointColumn::Longitude;
        columns[i] = kind;
        for (std::size_t back = 1; back <= 3 && back <= i; ++back) {
            const ColumnContent& content = contents[i - back];
            if (!content.isNumber() || columns[i - back] != PointColumn::None || !content.isWithin(180.0))
                break;
            columns[i - back] = kind;
            if (!content.isWhole && back > 1)
                break;
        }
    }
}

bool has(const std::vector<PointColumn>& columns, PointColumn column) {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

/// By what fits the numbers: angles first, then the pairs in the order of a list of points, then a height.
std::vector<PointColumn> guessFromNumbers(const std::vector<ColumnContent>& contents) {
    std::vector<PointColumn> columns(contents.size(), PointColumn::None);
    guessLetters(contents, columns);
    std::vector<std::size_t> angles, numbers;
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (columns[i] != PointColumn::None)
            continue;
        // The other angle of a pair may be whole degrees.
        const bool isSecond = angles.size() == 1 && angles[0] + 1 == i && contents[i].isNumber();
        if (contents[i].isAngle() || (isSecond && contents[i].isWithin(360.0)))
            angles.push_back(i);
        else if (contents[i].isNumber())
            numbers.push_back(i);
        else if (contents[i].texts > 0 && !has(columns, PointColumn::Name))
            columns[i] = PointColumn::Name;
    }
    if (angles.size() >= 2) {
        const bool isSwapped =
            contents[angles[0]].isAngle() ? contents[angles[0]].latitudes == 0 : contents[angles[1]].longitudes == 0;
        columns[angles[isSwapped ? 1 : 0]] = PointColumn::Latitude;
        columns[angles[isSwapped ? 0 : 1]] = PointColumn::Longitude;
    }
    // Whole numbers in front are names where there are others enough.
    const bool isWholeInFront = !numbers.empty() && numbers[0] == 0 && contents[0].isWhole;
    const bool isOneTooMany = numbers.size() % 2 == 1 && numbers.size() + angles.size() >= 3;
    const bool isUnlikeNext = numbers.size() >= 4 && !contents[1].isWhole;
    if (!has(columns, PointColumn::Name) && isWholeInFront && (isOneTooMany || isUnlikeNext)) {
        columns[0] = PointColumn::Name;
        numbers.erase(numbers.begin());
    }
    const auto take = [&](PointColumn first, PointColumn second, auto fits) {
        if (has(columns, first) || has(columns, second))
            return;
        for (std::size_t i = 0; i + 1 < numbers.size(); ++i) {
            if (fits(contents[numbers[i]], contents[numbers[i + 1]])) {
                columns[numbers[i]] = first;
                columns[numbers[i + 1]] = second;
                numbers.erase(numbers.begin() + std::ptrdiff_t(i), numbers.begin() + std::ptrdiff_t(i) + 2);
                return;
            }
        }
    };
    const auto isGridLike = [](const ColumnContent& left, const ColumnContent& right) {
        return !left.isWithin(9000.0) && !right.isWithin(360.0);
    };
    take(PointColumn::Easting, PointColumn::Northing, isGridLike);
    take(PointColumn::Latitude, PointColumn::Longitude, [](const ColumnContent& left, const ColumnContent& right) {
        return left.isWithin(90.0) && right.isWithin(360.0);
    });
    take(PointColumn::Longitude, PointColumn::Latitude, [](const ColumnContent& left, const ColumnContent& right) {
        return left.isWithin(360.0) && right.isWithin(90.0);
    });
    take(PointColumn::Easting, PointColumn::Northing,
         [](const ColumnContent&, const ColumnContent& right) { return !right.isWithin(360.0); });
    if (!numbers.empty() && contents[numbers.front()].isWithin(9000.0))
        columns[numbers.front()] = PointColumn::Height;
    return columns;
}

/// Whether commas stand between digits only and the line's blanks part what they are in.
bool looksLikeDecimalComma(const std::vector<std::string_view>& lines, char separator) {
    std::size_t withComma = 0;
    PointLayout layout;
    layout.separator = separator;
    std::vector<std::string_view> fields;
    std::string unquoted;
    for (const std::string_view line : lines) {
        layout.split(line, fields, unquoted);
        for (const std::string_view field : fields) {
            if (field.find(',') == std::string_view::npos)
                continue;
            double value = 0.0;
            const bool isBetween = field.front() != ',' && field.back() != ',';
            if (!isBetween || field.find(',') != field.rfind(',') || PointNumber::read(field, false, &value))
                return false;
            withComma += PointNumber::read(field, true, &value) ||
                         PointNumber::readAngle(field, true, AngleRole::Azimuth, &value) ||
                         PointNumber::readAngle(field, true, AngleRole::Latitude, &value) ||
                         PointNumber::readAngle(field, true, AngleRole::Longitude, &value);
        }
    }
    return withComma > 0;
}

std::size_t linesWith(const std::vector<std::string_view>& lines, char c) {
    return std::size_t(std::count_if(lines.begin(), lines.end(),
                                     [&](std::string_view line) { return line.find(c) != std::string_view::npos; }));
}

char guessSeparator(const std::vector<std::string_view>& lines, bool* decimalComma) {
    for (const char separator : {'\t', ';'}) {
        if (linesWith(lines, separator) * 2 > lines.size()) {
            *decimalComma = looksLikeDecimalComma(lines, separator);
            return separator;
        }
    }
    if (linesWith(lines, ',') * 2 > lines.size()) {
        const bool hasBlanks = linesWith(lines, ' ') * 2 > lines.size();
        *decimalComma = hasBlanks && looksLikeDecimalComma(lines, ' ');
        return *decimalComma ? ' ' : ',';
    }
    *decimalComma = false;
    return ' ';
}

} // namespace

PointLayout PointLayout::guess(const QByteArray& head) {
    PointLayout layout;
    layout.separator = guessSeparator(linesOf(head, linesToLookAt), &layout.decimalComma);
    return layout.withGuessedColumns(head);
}

PointLayout PointLayout::withGuessedColumns(const QByteArray& head) const {
    PointLayout layout = *this;
    const auto lines = firstLines(head, linesToLookAt);
    std::size_t count = 0;
    for (const auto& line : lines)
        count = std::min(std::max(count, line.size()), mostColumns);
    layout.hasHeading = false;
    layout.columns.assign(count, PointColumn::None);
    if (lines.empty())
        return layout;
    std::size_t known = 0;
    bool isNumeric = false;
    std::vector<PointColumn> named(count, PointColumn::None);
    const std::size_t headings = std::min(lines[0].size(), count);
    const bool isXNorth = countsXNorth(lines[0]);
    for (std::size_t i = 0; i < headings; ++i) {
        double value = 0.0;
        named[i] = meaningOf(lines[0][i], isXNorth);
        // The first of two columns with such a name is the one.
        if (std::find(named.begin(), named.begin() + std::ptrdiff_t(i), named[i]) != named.begin() + std::ptrdiff_t(i))
            named[i] = PointColumn::None;
        known += named[i] != PointColumn::None;
        isNumeric = isNumeric || PointNumber::read(lines[0][i], decimalComma, &value);
    }
    std::vector<ColumnContent> below;
    bool areNumbersBelow = false;
    for (std::size_t i = 0; i < count; ++i) {
        below.push_back(contentOf(lines, i, 1, decimalComma));
        areNumbersBelow = areNumbersBelow || below.back().isNumber() || below.back().isAngle();
    }
    layout.hasHeading =
        !isNumeric &&
        (known >= 2 || (areNumbersBelow && lines.size() > 1 && headings >= 2 && below[headings - 1].numbers > 0));
    layout.columns = named;
    if (layout.hasHeading && layout.isComplete())
        return layout;
    std::vector<ColumnContent> contents;
    for (std::size_t i = 0; i < count; ++i)
        contents.push_back(contentOf(lines, i, layout.hasHeading ? 1 : 0, decimalComma));
    layout.columns = guessFromNumbers(contents);
    return layout;
}

bool PointLayout::isComplete() const {
    const bool latitude = has(columns, PointColumn::Latitude), longitude = has(columns, PointColumn::Longitude);
    const bool easting = has(columns, PointColumn::Easting), northing = has(columns, PointColumn::Northing);
    return latitude == longitude && easting == northing && (latitude || easting);
}

void PointLayout::split(std::string_view line, std::vector<std::string_view>& fields, std::string& unquoted) const {
    fields.clear();
    unquoted.clear();
    unquoted.reserve(line.size()); // so that the fields in it stay where they are
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && (line[at] == ' ' || (line[at] == '\t' && separator != '\t')))
            ++at;
        if (at == line.size() && separator == ' ')
            return;
        std::size_t end = at;
        const std::size_t start = unquoted.size();
        bool isQuoted = false;
        if (at < line.size() && line[at] == '"') {
            for (end = at + 1; end < line.size() && !isQuoted; ++end) {
                if (line[end] != '"')
                    unquoted += line[end];
                else if (end + 1 < line.size() && line[end + 1] == '"')
                    unquoted += line[end++];
                else
                    isQuoted = true;
            }
        }
        if (!isQuoted)
            end = at;
        const auto isEnd = [&](char c) { return c == separator || (separator == ' ' && c == '\t'); };
        const std::size_t stop =
            std::size_t(std::find_if(line.begin() + std::ptrdiff_t(end), line.end(), isEnd) - line.begin());
        // What stands behind the second quote makes the quotes part of the text.
        if (isQuoted && trimmed(line.substr(end, stop - end)).empty())
            fields.push_back(trimmed(std::string_view(unquoted).substr(start)));
        else
            fields.push_back(trimmed(line.substr(at, stop - at)));
        if (stop == line.size())
            return;
        at = stop + 1;
    }
}

std::vector<std::vector<std::string>> PointLayout::firstLines(const QByteArray& head, std::size_t count) const {
    std::vector<std::vector<std::string>> lines;
    std::vector<std::string_view> fields;
    std::string unquoted;
    for (const std::string_view line : linesOf(head, count)) {
        split(line, fields, unquoted);
        lines.emplace_back(fields.begin(), fields.end());
    }
    return lines;
}
