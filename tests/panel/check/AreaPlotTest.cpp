#include "panel/check/AreaPlot.h"

#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <qwt_scale_div.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/// A distortion of that many ppm at the western and the eastern end of the kilometre around 0, and even between them.
class EvenSlope : public IProjectedSystem {
public:
    EvenSlope(double west, double east) : west(west), east(east) {}

    std::optional<GridPoint> toGrid(const GeographicPoint&) const override { return std::nullopt; }
    std::optional<GeographicPoint> toGeographic(const GridPoint&, double) const override { return std::nullopt; }
    std::optional<LocalScale> localScale(const GeographicPoint&) const override { return std::nullopt; }
    bool hasDatumShift() const override { return false; }
    std::optional<GeographicPoint> toWgs84(const GeographicPoint&) const override { return std::nullopt; }
    std::optional<GeographicPoint> fromWgs84(const GeographicPoint&) const override { return std::nullopt; }
    double meanRadius(double) const override { return 6378000.0; }
    void linearDistortion(const GridPoint* points, std::size_t count, double, double* ppm) const override {
        for (std::size_t i = 0; i < count; ++i)
            ppm[i] = west + (east - west) * (points[i].easting / 1000.0 + 0.5);
    }

private:
    double west;
    double east;
};

/// The plot of a slope, and the colours of its pixels.
class SlopeOnScreen {
public:
    SlopeOnScreen(double west, double east) {
        plot.resize(500, 400);
        plot.show();
        QApplication::processEvents();
        const GridArea area{{0.0, 0.0}, 1000.0, 1000.0};
        plot.showValues(AreaValues::distortion(EvenSlope(west, east), area, 101, 101, 0.0), area,
                        {"ppm", AreaValues::distortionNoise});
        plot.replot();
        const QSize canvas = plot.canvas()->size();
        QApplication::processEvents();
        isSettled = plot.canvas()->size() == canvas;
        image = plot.canvas()->grab().toImage();
    }

    /// That part of the way from the western end to the eastern one, away from labels and the frame; of the seven
    /// pixels around it the one in the middle of lightness, as a contour line may lead through there.
    QColor colour(double part) const {
        const QRect inside = plot.canvas()->contentsRect();
        const QPointF place(inside.left() + part * (inside.width() - 1), inside.top() + 5);
        std::vector<QColor> around;
        for (int offset = -3; offset <= 3; ++offset) {
            const QPointF beside = place + QPointF(offset, 0.0);
            if (inside.contains(beside.toPoint()))
                around.push_back(image.pixelColor((beside * image.devicePixelRatio()).toPoint()));
        }
        std::sort(around.begin(), around.end(),
                  [](const QColor& one, const QColor& other) { return one.lightness() < other.lightness(); });
        return around[around.size() / 2];
    }

    AreaPlot plot{QString()};
    bool isSettled; ///< the map has its final size as soon as it is drawn

private:
    QImage image;
};

bool isClose(const QColor& colour, QRgb expected) {
    const QColor other(expected);
    return std::abs(colour.red() - other.red()) < 8 && std::abs(colour.green() - other.green()) < 8 &&
           std::abs(colour.blue() - other.blue()) < 8;
}

constexpr QRgb blue = 0x4393c3, paleBlue = 0x92c5de, white = 0xffffff, paleRed = 0xf4a582, red = 0xd6604d;
constexpr QRgb paler = 0xc8e2ee; ///< in the middle between white and pale blue

} // namespace

class AreaPlotTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colours_data() {
        const Rows<double, double, double, QRgb> row({"west", "east", "part", "colour"});
        // Both signs: the larger value has the full colour.
        row("mixed, west", -399.0, 399.0, 0.005, blue);
        row("mixed, half negative", -400.0, 400.0, 0.253, paleBlue);
        row("mixed, zero", -397.0, 403.0, 0.496, white);
        row("mixed, half positive", -400.0, 400.0, 0.747, paleRed);
        row("mixed, east", -399.0, 399.0, 0.995, red);
        row("uneven, west end is half of east", -200.0, 400.0, 0.005, paleBlue);
        // One sign from 0: from white.
        row("from zero", 0.0, 40.0, 0.005, white);
        row("from zero, half", 0.0, 40.0, 0.505, paleRed);
        row("from zero, east", 0.0, 40.0, 0.995, red);
        row("up to zero", -40.0, 0.0, 0.995, white);
        row("up to zero, west", -40.0, 0.0, 0.005, blue);
        // One sign away from 0: coloured from the start.
        row("a little off zero", 4.0, 40.0, 0.003, 0xfdecE6);
        row("far below, nearest to zero", -400.0, -380.0, 0.995, paler);
        row("far below, farthest", -400.0, -380.0, 0.005, blue);
        row("far above, nearest to zero", 380.0, 400.0, 0.003, 0xf9d1c0);
        row("far above, farthest", 380.0, 400.0, 0.995, red);
    }

    /// White is 0 ppm and nothing else; blue is below it and red above.
    void colours() {
        QFETCH(double, west);
        QFETCH(double, east);
        QFETCH(double, part);
        QFETCH(QRgb, colour);
        const SlopeOnScreen screen(west, east);
        QVERIFY(screen.isSettled);
        const QColor seen = screen.colour(part);
        QVERIFY2(isClose(seen, colour), qPrintable(seen.name()));
    }

    /// The scale beside the map reaches from the smallest to the largest value; no map, no scales.
    void scales() {
        SlopeOnScreen screen(-400.0, -380.0);
        const auto scale = screen.plot.axisScaleDiv(QwtPlot::yRight);
        QVERIFY(std::abs(scale.lowerBound() + 400.0) < 0.01 && std::abs(scale.upperBound() + 380.0) < 0.01);
        screen.plot.clear();
        for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight})
            QVERIFY(!screen.plot.axisEnabled(axis));
    }

    /// The arrow keys lead over the map as the mouse does, and what there is to see is told in words.
    void keysAndWords() {
        SlopeOnScreen screen(-400.0, 400.0);
        AreaPlot& plot = screen.plot;
        const QString words = plot.accessibleDescription();
        QVERIFY2(words.contains("Smallest value: -400 ppm at easting -0.5,"), qPrintable(words));
        QVERIFY2(words.contains("Largest value: 400 ppm at easting 0.5,"), qPrintable(words));
        QSignalSpy pointed(&plot, SIGNAL(pointed(double, double))), left(&plot, SIGNAL(left()));
        const auto coordinate = [&](int index) {
            return pointed.isEmpty() ? qQNaN() : pointed.last()[index].toDouble();
        };
        QApplication::setActiveWindow(&plot);
        plot.setFocus(Qt::TabFocusReason);
        QVERIFY(std::abs(coordinate(0)) < 5.0 && std::abs(coordinate(1)) < 5.0);
        QTest::keyClick(&plot, Qt::Key_Right);
        QVERIFY(std::abs(coordinate(0) - 50.0) < 5.0);
        const double before = coordinate(1);
        QTest::keyClick(&plot, Qt::Key_Up, Qt::ShiftModifier);
        QVERIFY(coordinate(1) > before && coordinate(1) - before < 5.0);
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&plot, Qt::Key_Left);
        QVERIFY(std::abs(coordinate(0) + 500.0) < 5.0);
        plot.describePlace("-400 ppm");
        QCOMPARE(plot.accessibleDescription(), "-400 ppm. " + words);
        QCOMPARE(left.count(), 0);
        plot.clearFocus();
        QCOMPARE(left.count(), 1);
        plot.clear();
        QCOMPARE(plot.accessibleDescription(), QString("The picture is empty."));
        QCOMPARE(plot.focusPolicy(), Qt::NoFocus);
    }
};

ROOM_TEST(AreaPlotTest)
#include "AreaPlotTest.moc"
