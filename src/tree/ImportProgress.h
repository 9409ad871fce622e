#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include <functional>
#include <memory>

class QProgressDialog;
class QWidget;

/// Tells the user how far a long import is and lets him cancel it. An import that works for no more than half a second
/// and has no more than three messages shows nothing; the time in which a message waits for an answer does not count.
class ImportProgress {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordSysGroups)

public:
    ImportProgress(QWidget* parent, int fileCount);
    ~ImportProgress();

    /// Before each file. False when the user has cancelled: that file and those after it are left out.
    bool beginFile(const QString& path);

    /// After each file.
    void endFile();

    /// Runs `message`, a modal message about the file at hand, with the progress window out of its way. Between two
    /// messages that window is in sight for a second, in which it can be reached; once the user has cancelled, there
    /// are no more messages.
    void showMessage(const std::function<void()>& message);

private:
    bool isLong() const;
    bool isCancelled() const;
    void show(const QString& path);
    void stayInReach();

    QWidget* parent;
    int fileCount;
    int filesDone = 0;
    int messages = 0;
    qint64 workedFor = 0; ///< milliseconds
    QElapsedTimer fileTimer;
    QElapsedTimer shownTimer;   ///< since the window's last refresh
    QElapsedTimer messageTimer; ///< since the last message
    std::unique_ptr<QProgressDialog> dialog;
};
