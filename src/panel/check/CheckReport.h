#pragma once

#include "panel/computing/PointStatistics.h"

#include <QString>

#include <memory>
#include <vector>

class QDateTime;
class ShownSystem;

/// The report of a check as one HTML text: the system, how well the points agree with it, two pictures, and the points.
/// The text holds to what QTextDocument and every browser know.
class CheckReport {
public:
    /// What is reported. The points are computed through the system, and outlive the report.
    struct Check {
        std::shared_ptr<const ShownSystem> system; ///< with a projection
        const PointTable* points;
        CheckPoint::Datum datum; ///< of the points' latitudes, longitudes and heights
        double tolerance;        ///< metres
    };

    /// What the picture of the distortion shows: ppm; the first is beyond the second where there is none.
    struct Distortion {
        double smallest = 1.0;
        double largest = 0.0;
    };

    /// The pictures' names in the text, where the points have a place on the grid.
    static constexpr const char* pointsPicture = "points.png";
    static constexpr const char* distortionPicture = "distortion.png";

    /// Both pictures' width and height, in pixels of 96 to the inch.
    static constexpr int pictureWidth = 650;
    static constexpr int pictureHeight = 395;

    /// So many points are listed whole; of more, so many of those that are left out or of no use, and so many that are
    /// farthest off.
    static constexpr std::size_t mostListed = 3000;
    static constexpr std::size_t mostPicked = 500;

    explicit CheckReport(Check reported) : check(std::move(reported)) {}

    /// Counts the rows from `first` to before `last`; finish() ends that.
    void add(std::size_t first, std::size_t last);
    void finish();

    const PointStatistics& statistics() const { return counted; }
    bool hasPictures() const { return counted.lowest.easting <= counted.highest.easting; }

    /// Of the points that have one, on the system's own datum, in metres; 0 where none has one.
    double meanHeight() const;

    /// `versions` names what computed. Lengths and angles of points are in the unit and the notation chosen now.
    QString html(const QDateTime& time, const QString& versions, const Distortion& distortion) const;

private:
    struct Distance {
        double metres;
        std::size_t row;

        bool operator<(const Distance& other) const { return metres > other.metres; }
    };

    QString systemPart() const;
    QString resultPart() const;
    QString verdict() const;
    QString names(const std::vector<std::size_t>& rows, std::size_t count) const;
    QString picturesPart(const Distortion& distortion) const;
    QString pointsPart() const;
    QString pointTable(const std::vector<std::size_t>& rows) const;
    QString pointRow(std::size_t row) const;
    bool isBeyond(std::size_t row) const;

    Check check;
    PointStatistics counted;
    double heightSum = 0.0;
    std::size_t heightCount = 0;
    std::size_t uncomputed = 0;
    std::size_t unusedCount = 0;     ///< left out, or of no use
    std::vector<std::size_t> unused; ///< the first of those
    std::vector<Distance> farthest;  ///< of those in use; a heap until finish(), then the farthest first
};
