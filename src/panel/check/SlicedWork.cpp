#include "panel/check/SlicedWork.h"

#include <QElapsedTimer>

#include <utility>

namespace {

constexpr qint64 slice = 25; ///< milliseconds

}

SlicedWork::SlicedWork(QObject* parent) : QObject(parent) {
    timer.setInterval(0);
    connect(&timer, SIGNAL(timeout()), this, SLOT(_onTimeout()));
}

void SlicedWork::start(const Piece& newPiece, const std::function<void()>& newDone) {
    piece = newPiece;
    done = newDone;
    timer.start();
}

void SlicedWork::end() {
    timer.stop();
    piece = nullptr;
    done = nullptr;
}

void SlicedWork::cancel() {
    if (!isRunning())
        return;
    end();
    Q_EMIT ended();
}

void SlicedWork::_onTimeout() {
    QElapsedTimer time;
    time.start();
    double part = 0.0;
    const Piece current = piece; // which may cancel the work, and must outlive that
    while (part < 1.0 && time.elapsed() < slice)
        part = current();
    if (!isRunning())
        return;
    Q_EMIT progressed(part);
    // Whoever heard of it may have cancelled.
    if (part < 1.0 || !isRunning())
        return;
    const std::function<void()> finished = std::exchange(done, nullptr);
    end();
    finished();
    if (!isRunning())
        Q_EMIT ended();
}
