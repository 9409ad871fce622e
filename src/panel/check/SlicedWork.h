#pragma once

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <functional>

/// Work that takes long, done in slices between the events of the window, so that it never hangs.
class SlicedWork : public QObject {
    Q_OBJECT

public:
    /// Does a piece that takes some milliseconds at most, and says how much of all is done then: 1 at the end.
    using Piece = std::function<double()>;

    /// So many points make a piece.
    static constexpr std::size_t rowsPerPiece = 1000;

    explicit SlicedWork(QObject* parent = nullptr);

    /// Drops what is going on, and begins; `done` is called after the last piece.
    void start(const Piece& piece, const std::function<void()>& done);

    /// Ends without `done`.
    void cancel();

    bool isRunning() const { return timer.isActive(); }

Q_SIGNALS:
    void progressed(double part);

    /// Done or cancelled.
    void ended();

private Q_SLOTS:
    void _onTimeout();

private:
    void end();

    QTimer timer;
    Piece piece;
    std::function<void()> done;
};
