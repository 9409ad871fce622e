#pragma once

#include "panel/check/CheckReport.h"

#include <QImage>

class PointsPlot;

/// The pictures of a report, fine enough for print.
namespace ReportPictures {

/// A picture that no window shows.
std::unique_ptr<PointsPlot> newPointsPlot();

/// What `plot` shows.
QImage of(PointsPlot& plot);

/// The system's distortion over the area of the points and a little around it, at their mean height; null where the
/// projection gives none there.
QImage distortion(const ShownSystem& system, const CheckReport& report, CheckReport::Distortion* shown);

} // namespace ReportPictures
