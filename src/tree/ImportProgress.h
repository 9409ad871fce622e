#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

/// Tells the user how far a long import is and lets him cancel it. An import that works for no more than half a second
/// shows nothing; the time in which a message waits for an answer does not count.
class ImportProgress {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordSysGroups)

public:
    ImportProgress(QWidget* parent, int fileCount);
    ~ImportProgress();

    /// Before each file. False when the user has cancelled: that file and those after it are left out.
    bool beginFile(const QString& path);

    /// After the work on a file, before any message about it.
    void endFile();

private:
    void show(const QString& path);

    QWidget* parent;
    int fileCount;
    int filesDone = 0;
    qint64 workedFor = 0; ///< milliseconds
    QElapsedTimer fileTimer;
    QElapsedTimer shownTimer;
    std::unique_ptr<QProgressDialog> dialog;
};
