#pragma once

#include "panel/check/CheckReport.h"

#include <QImage>

class AreaPlot;
class PointsPlot;
class QwtPlot;

/// The pictures of a report, fine enough for print. Each step takes some hundredths of a second.
namespace ReportPictures {

/// Pictures that no window shows, to be filled.
std::unique_ptr<PointsPlot> newPointsPlot();
std::unique_ptr<AreaPlot> newDistortionPlot();

/// Shows the system's distortion over the area of the points and a little around it, at their mean height. Gives what
/// there is to see.
CheckReport::Distortion showDistortion(AreaPlot& plot, const ShownSystem& system, const CheckReport& report);

/// The plot, with so many pixels for one of the screen.
QImage of(QwtPlot& plot, int finer);

} // namespace ReportPictures
