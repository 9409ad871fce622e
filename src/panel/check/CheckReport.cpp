#include "panel/check/CheckReport.h"

#include "catalogue/CoordParamKey.h"
#include "panel/computing/ShownSystem.h"
#include "panel/record/AngleText.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/SystemDescription.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

const char* const style = R"(
body { font-family: Segoe UI, DejaVu Sans, Arial, sans-serif; font-size: 9pt; color: #000000; max-width: 190mm; }
h1 { font-size: 16pt; margin: 0 0 2px 0; }
h2 { font-size: 11pt; margin: 16px 0 4px 0; page-break-after: avoid; }
h2.page { page-break-before: always; }
p { margin: 3px 0; }
table { margin: 0 0 8px 0; border-collapse: collapse; }
td, th { padding: 1px 6px 1px 0; vertical-align: top; text-align: left; }
th { font-weight: bold; background-color: #e6e6e6; padding: 1px 6px; }
table.points { font-size: 6.5pt; width: 100%; }
table.points td, table.points th { padding: 1px 2px; }
td.number, th.number { text-align: right; white-space: nowrap; padding: 1px 6px; }
td.name { color: #505050; white-space: nowrap; }
.unused { color: #808080; }
.beyond { color: #b2182b; }
.small { font-size: 8pt; color: #404040; }
img { max-width: 100%; height: auto; }
)";

/// A text that the user typed, or that a file held, as it is: no character of it is markup, and a line stays a line.
QString escaped(const QString& text) {
    QString clean = text;
    for (QChar& character : clean) {
        if (character < ' ' && character != '\n' && character != '\t')
            character = QChar::ReplacementCharacter;
    }
    return clean.toHtmlEscaped().replace('\n', "<br>");
}

/// What a file held, which may be thousands of characters that no one reads on paper.
QString shortened(const QString& text) {
    constexpr int most = 300;
    return escaped(text.size() > most ? text.left(most) + " ..." : text);
}

QString nameOf(const PointTable& points, std::size_t row) {
    const std::string_view name = points.name(row);
    return shortened(QString::fromUtf8(name.data(), int(name.size())));
}

QString withUnit(const QString& number) {
    return number + ' ' + LengthUnit::symbol();
}

QString heading(const QString& text) {
    return "<h2>" + text + "</h2>\n";
}

QString paragraph(const QString& html, const char* look = "") {
    return QString("<p class=\"%1\">%2</p>\n").arg(look, html);
}

/// A line of names and values.
QString nameRow(const QString& name, const QString& value) {
    return "<tr><td class=\"name\">" + name + "</td><td dir=\"auto\">" + value + "</td></tr>\n";
}

QString numberCell(const QString& number, const char* look = "") {
    return QString("<td class=\"number %1\" align=\"right\">%2</td>").arg(look, number);
}

QString numberHeading(const QString& name) {
    return "<th class=\"number\" align=\"right\">" + name + "</th>";
}

QString figuresRow(const QString& name, const PointStatistics::Figures& figures) {
    QString row = "<tr><td>" + name + "</td>";
    for (const double figure : {figures.mean, figures.rms, figures.largest})
        row += numberCell(LengthUnit::text(figure));
    return row + "</tr>\n";
}

QString unitSentence() {
    switch (LengthUnit::chosen()) {
    case LengthUnit::InternationalFoot:
        return PanelText::tr(
            "Lengths of points in international feet (ft, 0.3048 m); the system's parameters in metres.");
    case LengthUnit::UsSurveyFoot:
        return PanelText::tr(
            "Lengths of points in US survey feet (ftUS, 1200/3937 m); the system's parameters in metres.");
    default:
        return PanelText::tr("Lengths in metres (m).");
    }
}

/// The height of a row on the system's own datum; NaN where there is none.
double ownHeight(const CheckReport::Check& check, std::size_t row) {
    const IProjectedSystem& projection = *check.system->projection();
    GeographicPoint place = check.points->computedPlace(row);
    place.height = check.points->given(row, PointColumn::Height);
    if (check.datum == CheckPoint::Datum::Own || std::isnan(place.height))
        return place.height;
    const auto own = check.points->hasPlace(row)  ? check.points->ownPlace(row, projection, check.datum)
                     : std::isnan(place.latitude) ? std::nullopt
                                                  : projection.fromWgs84(place);
    return own ? own->height : std::nan("");
}

} // namespace

bool CheckReport::isBeyond(std::size_t row) const {
    const GridPoint difference = check.points->difference(row);
    return std::hypot(difference.easting, difference.northing) > check.tolerance;
}

void CheckReport::add(std::size_t first, std::size_t last) {
    counted.add(*check.points, first, last, check.tolerance);
    for (std::size_t row = first; row < last; ++row) {
        const bool isProblem = check.points->hasProblem(row);
        if (isProblem || !check.points->isUsed(row)) {
            ++unusedCount;
            if (unused.size() < mostPicked)
                unused.push_back(row);
        }
        if (isProblem)
            continue;
        uncomputed += std::isnan(check.points->hasPlace(row) ? check.points->computedGrid(row).easting
                                                             : check.points->computedPlace(row).latitude);
        const double height = ownHeight(check, row);
        if (!std::isnan(height)) {
            heightSum += height;
            ++heightCount;
        }
        const GridPoint difference = check.points->difference(row);
        const Distance distance{std::hypot(difference.easting, difference.northing), row};
        if (std::isnan(distance.metres) || !check.points->isUsed(row))
            continue;
        const bool isFull = farthest.size() == mostPicked;
        if (isFull && distance.metres <= farthest.front().metres)
            continue;
        if (isFull) {
            std::pop_heap(farthest.begin(), farthest.end());
            farthest.pop_back();
        }
        farthest.push_back(distance);
        std::push_heap(farthest.begin(), farthest.end());
    }
}

void CheckReport::finish() {
    counted.finish();
    std::sort_heap(farthest.begin(), farthest.end());
}

double CheckReport::meanHeight() const {
    return heightCount > 0 ? heightSum / double(heightCount) : 0.0;
}

QString CheckReport::html(const QDateTime& time, const QString& versions, const Distortion& distortion) const {
    const QString name = escaped(check.system->name());
    QString text = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + name + "</title>\n<style>" + style +
                   "</style></head>\n<body>\n";
    text += paragraph(PanelText::tr("Check of a coordinate system against control points"), "small");
    text += "<h1 dir=\"auto\">" + name + "</h1>\n";
    text +=
        paragraph(time.toString("yyyy-MM-dd HH:mm t").toHtmlEscaped() + " &nbsp;·&nbsp; " + escaped(versions), "small");
    text += resultPart() + systemPart();
    if (hasPictures())
        text += picturesPart(distortion);
    return text + pointsPart() + "</body></html>\n";
}

QString CheckReport::verdict() const {
    const QString tolerance = withUnit(NumberText::rounded(check.tolerance / LengthUnit::metres(), 4));
    if (counted.count == 0)
        return PanelText::tr("No point in use has both pairs of coordinates: nothing could be compared.");
    if (counted.beyond == 0)
        return PanelText::tr("All %n compared point(s) are within the tolerance of %1.", nullptr, int(counted.count))
            .arg(tolerance);
    return PanelText::tr("%n of %1 compared points are beyond the tolerance of %2.", nullptr, int(counted.beyond))
        .arg(counted.count)
        .arg(tolerance);
}

QString CheckReport::resultPart() const {
    QString text = heading(PanelText::tr("Result"));
    text += paragraph("<b>" + verdict() + "</b>", counted.beyond > 0 || counted.count == 0 ? "beyond" : "");
    if (counted.count > 0) {
        text += "<table><thead><tr>" + QString("<th>%1</th>").arg(PanelText::tr("Computed minus given"));
        for (const QString& name : {PanelText::tr("mean"), PanelText::tr("RMS"), PanelText::tr("largest")})
            text += numberHeading(name + ", " + LengthUnit::symbol());
        text += "</tr></thead>\n" + figuresRow("ΔE", counted.easting) + figuresRow("ΔN", counted.northing) +
                figuresRow(PanelText::tr("Distance"), counted.distance) + "</table>\n";
    }
    const std::size_t size = check.points->size();
    const std::size_t single = size - counted.count - counted.leftOut - counted.problems - uncomputed;
    text += "<table>\n";
    const auto add = [&](std::size_t count, const QString& what, const QString& names = QString()) {
        if (count > 0)
            text += "<tr>" + numberCell(QString::number(count)) + "<td dir=\"auto\">" +
                    (names.isEmpty() ? what : PanelText::named(what, names)) + "</td></tr>\n";
    };
    std::vector<std::size_t> beyond, leftOut;
    for (const Distance& distance : farthest) {
        if (distance.metres > check.tolerance)
            beyond.push_back(distance.row);
    }
    std::copy_if(unused.begin(), unused.end(), std::back_inserter(leftOut),
                 [this](std::size_t row) { return !std::isnan(check.points->difference(row).easting); });
    add(size, PanelText::tr("point(s) in the list", nullptr, int(size)));
    add(counted.count, PanelText::tr("compared: in use, with both pairs of coordinates"));
    add(counted.beyond, PanelText::tr("of these beyond the tolerance, the farthest first"),
        names(beyond, counted.beyond));
    add(counted.leftOut, PanelText::tr("with both pairs left out of the figures by hand"),
        names(leftOut, counted.leftOut));
    add(single, PanelText::tr("with one pair only, the other computed"));
    add(uncomputed, PanelText::tr("not computed, as that was cancelled"));
    add(counted.problems, PanelText::tr("without a result; the list says why"));
    add(counted.duplicates, PanelText::tr("with a name that another has"));
    text += "</table>\n";
    const QString datum =
        check.datum == CheckPoint::Datum::Own
            ? PanelText::tr("Latitudes, longitudes and heights of the points are on the system's own datum.")
            : PanelText::tr("Latitudes, longitudes and heights of the points are on WGS 84, and brought to "
                            "the system's datum by its shift.");
    text += paragraph(PanelText::joined({datum, unitSentence()}), "small");
    return text;
}

/// The first of `count` points.
QString CheckReport::names(const std::vector<std::size_t>& rows, std::size_t count) const {
    constexpr std::size_t most = 10;
    QStringList texts;
    for (std::size_t i = 0; i < std::min(rows.size(), most); ++i) {
        const QString name = nameOf(*check.points, rows[i]);
        texts << (name.isEmpty() ? PanelText::tr("No. %1").arg(rows[i] + 1) : name);
    }
    return texts.join(", ") + (count > most ? ", ..." : "");
}

QString CheckReport::systemPart() const {
    QString text = heading(PanelText::tr("System")) + "<table>\n";
    for (const SystemDescription::Line& line : SystemDescription::of(check.system->record()))
        text += nameRow(line.name, escaped(line.value));
    return text + "</table>\n";
}

QString CheckReport::picturesPart(const Distortion& distortion) const {
    const auto picture = [](const char* name) {
        return QString("<p><img src=\"%1\" width=\"%2\" height=\"%3\" alt=\"\"></p>\n")
            .arg(name)
            .arg(pictureWidth)
            .arg(pictureHeight);
    };
    QString text = "<h2 class=\"page\">" + PanelText::tr("Points and residuals") + "</h2>\n";
    text += picture(pointsPicture);
    text +=
        paragraph(PanelText::tr("Vectors lead from the given place to the computed one, longer than life by the factor "
                                "beside the scale bar. Red: beyond the tolerance. Grey: left out."),
                  "small");
    if (distortion.smallest > distortion.largest)
        return text;
    text += heading(PanelText::tr("Linear distortion")) + picture(distortionPicture);
    const QString range =
        PanelText::tr(
            "On the map: %1 to %2 ppm (mm in a kilometre). Red: longer in the grid than on the ground; blue: shorter. "
            "Black rectangle: the area of the points.")
            .arg(distortion.smallest, 0, 'f', 1)
            .arg(distortion.largest, 0, 'f', 1);
    const QString height =
        heightCount > 0 ? PanelText::tr("At the points' mean height of %1 above the ellipsoid.")
                              .arg(withUnit(QString::number(meanHeight() / LengthUnit::metres(), 'f', 0)))
                        : PanelText::tr("At the height 0, as the points have none: what the projection alone does.");
    return text + paragraph(PanelText::joined({range, height}), "small");
}

QString CheckReport::pointsPart() const {
    const std::size_t size = check.points->size();
    QString text = "<h2 class=\"page\">" + PanelText::tr("Points") + "</h2>\n";
    text += paragraph(PanelText::tr("ΔE, ΔN: computed from latitude and longitude, minus given. *: beyond the "
                                    "tolerance. Slanted: computed from the other pair."),
                      "small");
    std::vector<std::size_t> rows(std::min(size, mostListed));
    std::iota(rows.begin(), rows.end(), 0);
    if (size <= mostListed)
        return text + pointTable(rows);
    text += paragraph(
        PanelText::tr("The list has %1 points, too many for a report; here are those that matter most. \"Save...\" "
                      "writes all of them as CSV.")
            .arg(size));
    rows.clear();
    for (const Distance& distance : farthest)
        rows.push_back(distance.row);
    text += heading(PanelText::tr("The %n point(s) that are farthest off, of %1 compared", nullptr, int(rows.size()))
                        .arg(counted.count));
    text += pointTable(rows);
    if (unused.empty())
        return text;
    text +=
        heading(PanelText::tr("Points left out or without a result: the first %n of %1", nullptr, int(unused.size()))
                    .arg(unusedCount));
    return text + pointTable(unused);
}

QString CheckReport::pointTable(const std::vector<std::size_t>& rows) const {
    const QString unit = "<br>" + LengthUnit::symbol();
    QString text = "<table class=\"points\" width=\"100%\"><thead><tr>" + numberHeading(PanelText::tr("No.")) + "<th>" +
                   PanelText::tr("Name") + "</th>";
    for (const QString& name : {PanelText::tr("Latitude"), PanelText::tr("Longitude"), PanelText::tr("Height") + unit,
                                PanelText::tr("Easting") + unit, PanelText::tr("Northing") + unit, "ΔE" + unit,
                                "ΔN" + unit, PanelText::tr("Distance") + unit})
        text += numberHeading(name);
    text += "<th></th></tr></thead>\n";
    for (const std::size_t row : rows)
        text += pointRow(row);
    return text + "</table>\n";
}

/// The point, and in a row of its own below it whatever there is to say of it.
QString CheckReport::pointRow(std::size_t row) const {
    const PointTable& points = *check.points;
    const char* const look = !points.isUsed(row) ? "unused" : isBeyond(row) ? "beyond" : "";
    QString text = QString("<tr class=\"%1\">").arg(look) + numberCell(QString::number(row + 1), look) +
                   QString("<td class=\"%1\" dir=\"auto\">").arg(look) + nameOf(points, row) + "</td>";
    for (const PointColumn column : {PointColumn::Latitude, PointColumn::Longitude, PointColumn::Height,
                                     PointColumn::Easting, PointColumn::Northing}) {
        const double value = points.shown(row, column);
        const bool isAngle = column == PointColumn::Latitude || column == PointColumn::Longitude;
        const QString number = !isAngle            ? LengthUnit::text(value)
                               : std::isnan(value) ? QString()
                                                   : AngleText::rounded(value).toHtmlEscaped();
        text += numberCell(std::isnan(points.given(row, column)) ? "<i>" + number + "</i>" : number, look);
    }
    const GridPoint difference = points.difference(row);
    for (const double metres :
         {difference.easting, difference.northing, std::hypot(difference.easting, difference.northing)})
        text += numberCell(LengthUnit::text(metres), look);
    text += QString("<td class=\"%1\">%2</td></tr>\n").arg(look, isBeyond(row) ? "*" : "");
    QStringList remarks;
    if (!points.isUsed(row))
        remarks << PanelText::tr("Left out of the figures.");
    if (points.hasProblem(row) || points.isDuplicate(row))
        remarks << shortened(points.remark(row));
    if (!remarks.isEmpty())
        text += QString("<tr><td></td><td colspan=\"10\" class=\"%1\" dir=\"auto\">↳ %2</td></tr>\n")
                    .arg(points.hasProblem(row) ? "beyond" : look, PanelText::joined(remarks));
    return text;
}
