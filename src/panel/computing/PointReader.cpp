#include "panel/computing/PointReader.h"

#include "panel/computing/PointNumber.h"
#include "panel/record/PanelText.h"

#include <QTextCodec>
#include <QTextDecoder>

#include <algorithm>
#include <cmath>

namespace {

const QByteArray utf8Mark = QByteArrayLiteral("\xef\xbb\xbf");

bool isUtf16(const QByteArray& bytes) {
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

} // namespace

PointReader::PointReader(PointLayout layout, double metresPerUnit, PointTable& table)
    : layout(std::move(layout)), metresPerUnit(metresPerUnit), table(table), isHeadingNext(this->layout.hasHeading) {
}

PointReader::~PointReader() = default;

QByteArray PointReader::decodedHead(const QByteArray& bytes) {
    if (isUtf16(bytes))
        return QTextCodec::codecForName("UTF-16")->toUnicode(bytes).remove(QChar(0xfeff)).toUtf8();
    return QByteArray::fromStdString(PointNumber::toUtf8(
        std::string_view(bytes.constData(), std::size_t(bytes.size())).substr(bytes.startsWith(utf8Mark) ? 3 : 0)));
}

QString PointReader::refusal(const QByteArray& head) {
    if (head.trimmed().isEmpty() || head == utf8Mark)
        return PanelText::tr("There is nothing in it.");
    if (isUtf16(head))
        return QString();
    const auto isControl = [](char c) { return c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r' && c != '\f'; };
    if (head.contains('\0') || std::count_if(head.begin(), head.end(), isControl) > head.size() / 50)
        return PanelText::tr("It is no text. Save a table as CSV first.");
    return QString();
}

void PointReader::add(const QByteArray& bytes) {
    if (isStart) {
        start += bytes;
        if (start.size() >= utf8Mark.size())
            addStart();
    } else {
        addDecoded(bytes);
    }
}

void PointReader::addStart() {
    isStart = false;
    if (isUtf16(start))
        decoder.reset(QTextCodec::codecForName("UTF-16")->makeDecoder());
    if (start.startsWith(utf8Mark))
        start.remove(0, utf8Mark.size());
    addDecoded(start);
    start.clear();
}

void PointReader::addDecoded(const QByteArray& bytes) {
    if (!decoder)
        return addText({bytes.constData(), std::size_t(bytes.size())});
    QString text = half + decoder->toUnicode(bytes);
    half.clear();
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate()) {
        half = text.right(1);
        text.chop(1);
    }
    const QByteArray decoded = text.toUtf8();
    addText({decoded.constData(), std::size_t(decoded.size())});
}

void PointReader::addText(std::string_view text) {
    while (!text.empty()) {
        const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
        const auto end = std::size_t(std::find_if(text.begin(), text.end(), isEnd) - text.begin());
        const std::string_view piece = text.substr(0, end);
        const bool isWhole = end < text.size();
        if (isWhole && rest.empty() && piece.size() <= longestLine) {
            readLine(piece);
        } else {
            const std::size_t room = longestLine - rest.size();
            isTooLong = isTooLong || piece.size() > room;
            rest.append(piece.substr(0, room));
            if (isWhole)
                endLine();
        }
        text.remove_prefix(isWhole ? end + 1 : text.size());
    }
}

void PointReader::endLine() {
    readLine(rest);
    rest.clear();
    isTooLong = false;
}

void PointReader::finish() {
    if (isStart)
        addStart();
    addText(half.toUtf8().toStdString());
    endLine();
}

bool PointReader::readNumber(PointColumn column, std::string_view text, double* value) const {
    switch (column) {
    case PointColumn::Latitude:
        return PointNumber::readAngle(text, layout.decimalComma, AngleRole::Latitude, value);
    case PointColumn::Longitude:
        return PointNumber::readAngle(text, layout.decimalComma, AngleRole::Longitude, value);
    default:
        if (!PointNumber::read(text, layout.decimalComma, value))
            return false;
        *value *= metresPerUnit;
        return true;
    }
}

void PointReader::readLine(std::string_view line) {
    if (line.find_first_not_of(" \t\f") == std::string_view::npos)
        return;
    if (isHeadingNext) {
        isHeadingNext = false;
        return;
    }
    layout.split(line, fields, unquoted);
    constexpr std::size_t kinds = PointTable::numberCount + 1; // and the name
    std::array<std::string_view, kinds> texts;
    std::array<std::string, kinds> joined;
    for (std::size_t i = 0; i < std::min(fields.size(), layout.columns.size()); ++i) {
        const auto kind = std::size_t(layout.columns[i]);
        if (kind >= kinds || fields[i].empty())
            continue;
        if (texts[kind].empty()) {
            texts[kind] = fields[i];
        } else {
            std::string both(texts[kind]);
            joined[kind] = both.append(1, ' ').append(fields[i]);
            texts[kind] = joined[kind];
        }
    }
    std::array<double, PointTable::numberCount> values;
    std::array<bool, PointTable::numberCount> isUnread{}, isOutOfRange{};
    bool isRead = !isTooLong;
    bool isAnything = false;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto column = PointColumn(i);
        values[i] = PointTable::nothing;
        if (texts[i].empty())
            continue;
        isAnything = true;
        isUnread[i] = !readNumber(column, texts[i], &values[i]);
        isOutOfRange[i] = !isUnread[i] && !PointTable::accepts(column, values[i]);
        if (isUnread[i] || isOutOfRange[i]) {
            isRead = false;
            values[i] = PointTable::nothing;
        }
    }
    const auto isThere = [&](PointColumn column) { return !std::isnan(values[std::size_t(column)]); };
    const bool isHalf = isThere(PointColumn::Latitude) != isThere(PointColumn::Longitude) ||
                        isThere(PointColumn::Easting) != isThere(PointColumn::Northing);
    isRead = isRead && isAnything && !isHalf && (isThere(PointColumn::Latitude) || isThere(PointColumn::Easting));
    const std::string_view name = texts[std::size_t(PointColumn::Name)];
    const std::size_t row = table.append(PointNumber::toUtf8(name), isRead ? std::string() : PointNumber::toUtf8(line));
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto column = PointColumn(i);
        table.setGiven(row, column, values[i]);
        if (isUnread[i])
            table.setUnread(row, column);
        if (isOutOfRange[i])
            table.setOutOfRange(row, column);
    }
    if (isTooLong)
        table.setTooLong(row);
}
