#include "panel/check/ReportWriting.h"

#include "catalogue/File.h"
#include "panel/check/AreaPlot.h"
#include "panel/check/PointsPlot.h"
#include "panel/check/ReportPdf.h"
#include "panel/check/ReportPictures.h"
#include "panel/check/SlicedWork.h"
#include "panel/computing/ShownSystem.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QBuffer>
#include <QDateTime>
#include <QGuiApplication>
#include <QSemaphore>
#include <QThreadPool>

#include <atomic>

namespace {

constexpr int lineFineness = 3;
constexpr int mapFineness = 2; ///< colours take time, and need less

/// The unit and the notation that a report began in, while one lives: the user may choose others meanwhile.
class Notation {
public:
    Notation(LengthUnit::Kind unit, AngleNotation notation) {
        LengthUnit::choose(unit);
        AngleText::setNotation(notation);
    }
    ~Notation() {
        LengthUnit::choose(unitBefore);
        AngleText::setNotation(notationBefore);
    }
    Notation(const Notation&) = delete;
    Notation& operator=(const Notation&) = delete;

private:
    LengthUnit::Kind unitBefore = LengthUnit::chosen();
    AngleNotation notationBefore = AngleText::notation();
};

QString versions() {
    IProjectionModule& module = *projectionModule();
    return "PROJ " + QString::fromUtf8(module.version()) + ", " + QString::fromUtf8(module.registry().edition());
}

/// The text with its pictures in it.
QByteArray wholeHtml(const ReportPdf& content) {
    QString html = content.html;
    for (auto picture = content.pictures.begin(); picture != content.pictures.end(); ++picture) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        picture.value().save(&buffer, "PNG");
        html.replace("<img src=\"" + picture.key() + '"',
                     "<img src=\"data:image/png;base64," + QString::fromLatin1(png.toBase64()) + '"');
    }
    return html.toUtf8();
}

} // namespace

struct ReportWriting::Output {
    enum class State { Going, Cancelled, Committing };

    QString path;
    Form form;
    ReportPdf content;
    std::atomic<double> part{0.0};
    std::atomic<State> state{State::Going};
    QSemaphore ended;
    QString error;

    void write();
};

void ReportWriting::Output::write() {
    const auto goesOn = [this](double done) {
        part = done;
        return state == State::Going;
    };
    const QByteArray bytes = form == Form::Pdf ? content.write(goesOn) : wholeHtml(content);
    State expected = State::Going;
    if (!state.compare_exchange_strong(expected, State::Committing))
        return;
    if (bytes.isEmpty() || !process_replace_file(path, bytes, &error))
        error = error.isEmpty() ? PanelText::tr("no document could be made") : error;
    ended.release();
}

ReportWriting::ReportWriting(const CheckReport::Check& reported, const QString& path, Form form)
    : check(reported), report(reported), output(std::make_shared<Output>()) {
    output->path = path;
    output->form = form;
}

ReportWriting::~ReportWriting() {
    Output::State expected = Output::State::Going;
    output->state.compare_exchange_strong(expected, Output::State::Cancelled);
}

bool ReportWriting::isCommitting() const {
    return output->state == Output::State::Committing;
}

const QString& ReportWriting::error() const {
    return output->error;
}

double ReportWriting::step() {
    constexpr int patience = 5; // milliseconds
    const Notation own(unit, notation);
    switch (stage) {
    case Stage::Counting:
    case Stage::Drawing:
        return stepOverRows();
    case Stage::Mapping:
        map = ReportPictures::newDistortionPlot();
        distortion = ReportPictures::showDistortion(*map, *check.system, report);
        stage = Stage::Picturing;
        return 0.45;
    case Stage::Picturing:
        output->content.pictures[CheckReport::distortionPicture] = ReportPictures::of(*map, mapFineness);
        map.reset();
        stage = Stage::Composing;
        return 0.5;
    case Stage::Composing:
        compose();
        stage = Stage::Writing;
        return 0.55;
    default:
        return output->ended.tryAcquire(1, patience) ? 1.0 : 0.55 + 0.44 * output->part;
    }
}

double ReportWriting::stepOverRows() {
    const std::size_t size = check.points->size();
    const std::size_t last = std::min(next + SlicedWork::rowsPerPiece, size);
    const bool isCounting = stage == Stage::Counting;
    const double part = double(last) / double(size);
    const double done = isCounting ? 0.2 * part : (isSecond ? 0.3 : 0.2) + 0.1 * part;
    if (isCounting)
        report.add(next, last);
    else
        plot->add(*check.points, next, last);
    next = last;
    if (last == size) {
        if (isCounting)
            report.finish();
        else
            plot->finish();
        draw();
    }
    return done;
}

/// Begins the picture of the points, twice: the numbers on the axes of the first may change the canvas's shape.
void ReportWriting::draw() {
    next = 0;
    if (stage == Stage::Drawing && isSecond) {
        output->content.pictures[CheckReport::pointsPicture] = ReportPictures::of(*plot, lineFineness);
        plot.reset();
        stage = Stage::Mapping;
        return;
    }
    isSecond = stage == Stage::Drawing;
    if (stage == Stage::Counting && !report.hasPictures()) {
        stage = Stage::Composing;
        return;
    }
    if (!plot)
        plot = ReportPictures::newPointsPlot();
    stage = Stage::Drawing;
    plot->begin(report.statistics().lowest, report.statistics().highest, check.tolerance);
}

void ReportWriting::compose() {
    QDateTime time = QDateTime::currentDateTime();
    time.setOffsetFromUtc(time.offsetFromUtc()); // which is then told
    ReportPdf& content = output->content;
    content.html = report.html(time, versions(), distortion);
    content.title = check.system->name();
    content.creator = QGuiApplication::applicationDisplayName();
    content.font = QGuiApplication::font();
    content.font.setPointSizeF(9.0);
    QThreadPool::globalInstance()->start([shared = output] { shared->write(); });
}
