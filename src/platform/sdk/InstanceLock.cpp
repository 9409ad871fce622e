#include "platform/sdk/InstanceLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QSysInfo>
#include <QWindow>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

static constexpr int connectTimeout = 500; // milliseconds
static constexpr int startTimeout = 3000;  // milliseconds; another start takes a few of them

static QString instanceFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/ArvelaGnss/CoordSystemManager");
}

/// A home that several machines share has one lock for each of them.
static QString lockPath() {
    return instanceFolder() + QLatin1String("/instance-") + QSysInfo::machineHostName() + QLatin1String(".lock");
}

/// In the user's folder where the system has sockets in folders and the path is short enough for one (some 100 bytes),
/// else a name of the user's own.
static QString serverName() {
#ifndef Q_OS_WIN
    QString path = instanceFolder() + QLatin1String("/instance.socket");
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

bool InstanceLock::tryLock() {
    QDir().mkpath(instanceFolder());
    // One start at a time, so that nobody takes a lock that is just being made for an abandoned one.
    QLockFile start(lockPath() + QLatin1String(".start"));
    if (!start.tryLock(startTimeout))
        return start.error() != QLockFile::LockFailedError;

    bool isLocked = lock.tryLock();
    // A lock that was never written to its end, or whose dead owner still has its number: nobody answers, and the
    // system lets the file go, which it does not while the owner lives.
    if (!isLocked && !send({}) && lock.removeStaleLockFile())
        isLocked = lock.tryLock();
    if (!isLocked)
        return lock.error() != QLockFile::LockFailedError;

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
