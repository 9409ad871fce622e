#include "platform/sdk/InstanceLock.h"

#include "platform/sdk/ToolFolder.h"
#include "platform/utility/FileHold.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QSysInfo>
#include <QWindow>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

static constexpr int connectTimeout = 500; // milliseconds
static constexpr int startTimeout = 3000;  // milliseconds; another start takes a few of them
static constexpr int startStaleTime = 500; // milliseconds; a start that was killed leaves its lock behind

/// A home that several machines share has one lock and one socket for each of them.
static QString instancePath(const char* suffix) {
    return toolFolder() + QLatin1String("/instance-") + QSysInfo::machineHostName() + QLatin1String(suffix);
}

static QString lockPath() {
    return instancePath(".lock");
}

/// In the user's folder where the system has sockets in folders and the path is short enough for one (some 100 bytes),
/// else a name of the user's own.
static QString serverName() {
#ifndef Q_OS_WIN
    QString path = instancePath(".socket");
    if (QFile::encodeName(path).size() < 90)
        return path;
#endif
    const QByteArray hash = QCryptographicHash::hash(lockPath().toUtf8(), QCryptographicHash::Sha1).toHex();
    return QLatin1String("CoordSystemManager-") + QLatin1String(hash);
}

static void bringToFront() {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow* window : windows) {
        const bool isProper = window->type() == Qt::Window || window->type() == Qt::Dialog;
        if (!isProper || !window->isVisible())
            continue;
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
        window->raise();
        window->requestActivate();
    }
}

/// Connects to the running instance and sends `message`; false when nobody answers.
static bool send(const QByteArray& message) {
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(connectTimeout))
        return false;
    socket.write(message);
    socket.waitForBytesWritten(connectTimeout);
    return true;
}

InstanceLock::InstanceLock(QObject* parent) : QObject(parent), lock(lockPath()) {
    // The tool runs for days: its lock never grows old, it only loses its owner.
    lock.setStaleLockTime(0);
    connect(&server, SIGNAL(newConnection()), this, SLOT(_onNewConnection()));
}

/// Takes away what lies in a lock's place and is no living instance's: a lock that was never written to its end, one
/// whose dead owner still has its number or was another user, a folder. The system lets a lock's file go, which it does
/// not while the owner lives. False when somebody holds it, or it can't be moved.
static bool clearAway(const QString& path) {
    if (FileHold::of(path) == FileHold::State::Held)
        return false;
    return QFile::remove(path) ||
           QFile::rename(path, path + QLatin1String(".other-") + QString::number(QDateTime::currentMSecsSinceEpoch()));
}

bool InstanceLock::tryLock() {
    QDir().mkpath(toolFolder());
    // One start at a time, so that nobody takes a lock that is just being made for an abandoned one.
    const QString startPath = lockPath() + QLatin1String(".start");
    QLockFile start(startPath);
    start.setStaleLockTime(startStaleTime);
    const bool isStarting =
        start.tryLock(startStaleTime) || (clearAway(startPath) && start.tryLock()) || start.tryLock(startTimeout);
    if (!isStarting && FileHold::of(startPath) == FileHold::State::Held)
        return false;

    if (!lock.tryLock()) {
        if (lock.error() != QLockFile::LockFailedError)
            return true;
        // Whoever answers lives, whatever became of its lock.
        if (send({}))
            return false;
        if (!clearAway(lockPath()) || !lock.tryLock())
            return FileHold::of(lockPath()) == FileHold::State::Free;
    }
    // With the lock held, a socket in the way is a dead instance's.
    QLocalServer::removeServer(serverName());
    server.setSocketOptions(QLocalServer::UserAccessOption);
    server.listen(serverName());
    return true;
}

void InstanceLock::activateOther() {
#ifdef Q_OS_WIN
    // Only the process that the user just started may give the foreground away.
    AllowSetForegroundWindow(ASFW_ANY);
#endif
    send("activate\n");
}

void InstanceLock::_onNewConnection() {
    while (QLocalSocket* socket = server.nextPendingConnection()) {
        connect(socket, SIGNAL(readyRead()), this, SLOT(_onReadyRead()));
        connect(socket, SIGNAL(disconnected()), socket, SLOT(deleteLater()));
    }
}

void InstanceLock::_onReadyRead() {
    bringToFront();
}
