#pragma once

#include "panel/check/CheckReport.h"
#include "panel/record/AngleText.h"
#include "panel/record/LengthUnit.h"

#include <memory>

class AreaPlot;
class PointsPlot;

/// Writes the report of a check to a file, piece by piece: counts, draws and composes in the window's own thread, a few
/// milliseconds at once, and lays out and writes in another. What is at the path stays until the report is whole.
class ReportWriting {
public:
    enum class Form { Pdf, Html };

    /// The unit, the notation and the time are those of now.
    ReportWriting(const CheckReport::Check& reported, const QString& path, Form form);

    /// Without a file, unless it was done.
    ~ReportWriting();

    ReportWriting(const ReportWriting&) = delete;
    ReportWriting& operator=(const ReportWriting&) = delete;

    /// Does a piece, and says how much of all is done then: 1 at the end.
    double step();

    /// Whether it is too late to end without a file.
    bool isCommitting() const;

    /// Why there is no file, in the system's words; empty when there is one.
    const QString& error() const;

private:
    struct Output;
    enum class Stage { Counting, Drawing, Mapping, Picturing, Composing, Writing };

    double stepOverRows();
    void draw();
    void compose();

    CheckReport::Check check;
    LengthUnit::Kind unit = LengthUnit::chosen();
    AngleNotation notation = AngleText::notation();
    CheckReport report;
    CheckReport::Distortion distortion;
    Stage stage = Stage::Counting;
    std::size_t next = 0;
    bool isSecond = false; ///< drawing for a canvas that the first has changed
    std::unique_ptr<PointsPlot> plot;
    std::unique_ptr<AreaPlot> map;
    std::shared_ptr<Output> output; ///< shared with the thread
};
