#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/// Makes this process the one instance of the tool that runs for this user, and answers those that come later.
///
/// A lock file in the user's own data folder decides; a local socket, which only the user can connect to, is how a
/// later instance asks this one to come to the front. The lock tells a running owner from one that crashed or was
/// killed.
class InstanceLock : public QObject {
    Q_OBJECT

public:
    explicit InstanceLock(QObject* parent = nullptr);

    /// False when another instance runs. Where no lock can be made at all (a home that can't be written), true: better
    /// two instances than none.
    bool tryLock();

    /// Asks the running instance to bring its window to the front. It takes a moment, however busy that instance is.
    static void activateOther();

private Q_SLOTS:
    void _onNewConnection();
    void _onReadyRead();

private:
    QLockFile lock;
    QLocalServer server;
};
