#include "panel/check/ReportPictures.h"

#include "panel/check/AreaPlot.h"
#include "panel/check/PointsPlot.h"
#include "panel/computing/ShownSystem.h"
#include "panel/record/PanelText.h"

#include <QPainter>
#include <qwt_plot_renderer.h>

#include <algorithm>

namespace {

template <typename Plot, typename... Arguments> std::unique_ptr<Plot> newPlot(const Arguments&... arguments) {
    constexpr double fontSize = 8.0;
    auto plot = std::make_unique<Plot>(arguments...);
    QFont font = plot->font();
    font.setPointSizeF(fontSize);
    plot->setFont(font);
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis)
        plot->setAxisFont(axis, font);
    QPalette paper(Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    paper.setColor(QPalette::Text, Qt::black);
    plot->setPalette(paper);
    plot->resize(CheckReport::pictureWidth, CheckReport::pictureHeight);
    plot->updateLayout();
    return plot;
}

} // namespace

std::unique_ptr<PointsPlot> ReportPictures::newPointsPlot() {
    return newPlot<PointsPlot>();
}

std::unique_ptr<AreaPlot> ReportPictures::newDistortionPlot() {
    return newPlot<AreaPlot>(QString());
}

CheckReport::Distortion ReportPictures::showDistortion(AreaPlot& plot, const ShownSystem& system,
                                                       const CheckReport& report) {
    constexpr double least = 200.0, around = 1.25; // metres; of the points' area
    const GridPoint& low = report.statistics().lowest;
    const GridPoint& high = report.statistics().highest;
    const GridPoint centre{(low.easting + high.easting) / 2.0, (low.northing + high.northing) / 2.0};
    CheckReport::Distortion shown;
    // Other numbers on the axes may change the canvas's shape, and so the area.
    for (int i = 0; i < 2; ++i) {
        const GridArea area = plot.fitted({centre, around * std::max(least, high.easting - low.easting),
                                           around * std::max(least, high.northing - low.northing)});
        const QSize nodes = plot.nodeCount();
        const AreaValues values =
            AreaValues::distortion(*system.projection(), area, nodes.width(), nodes.height(), report.meanHeight());
        if (values.isEmpty())
            return {};
        shown = {values.smallest(), values.largest()};
        plot.showValues(values, area, {PanelText::tr("ppm"), AreaValues::distortionNoise});
        plot.showLines(DistortionLines(system.record(), *system.projection(), area));
    }
    plot.showPlaces(DistortionLines::origin(system.record()), std::nullopt,
                    {low, {high.easting, low.northing}, high, {low.easting, high.northing}, low});
    return shown;
}

QImage ReportPictures::of(QwtPlot& plot, int finer) {
    QImage image(plot.size() * finer, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(plot.logicalDpiX() * finer / 0.0254));
    image.setDotsPerMeterY(qRound(plot.logicalDpiY() * finer / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    // In pixels of the screen, for what is drawn with the painter's own font: a picture of more of them has it larger.
    QFont font = plot.font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    painter.setFont(font);
    QwtPlotRenderer().render(&plot, &painter, image.rect());
    return image;
}
