#pragma once

#include "panel/record/FileNames.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

#include <future>

class ICoordSystem;
class IDictionary;
enum class WktDialect;

/// The systems of a group as the files that they are saved in, one each: system, file name, and what became of it.
///
/// Saving takes one system at a time, so that a window can go on between them:
///     setGroup(); while (nameFiles() < 1) ...;
///     start(); while (look() < 1) ...; a question when existing() is not 0; while (save(overwriting) < 1) ...; end();
class GroupFiles : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { System, File, Result, ColumnCount };

    /// `shown` is the record of the system that is at work on: it is saved as it is here, not as in the catalogue. Both
    /// outlive the model.
    GroupFiles(ICoordSystem& catalogue, const IDictionary& shown, QObject* parent = nullptr);

    /// The groups in catalogue order, the one that holds the shown system first.
    const QStringList& groups() const { return groupNames; }

    void setGroup(const QString& name);

    /// Names the next systems' files; how much of all is done then, 1 at the end.
    double nameFiles();

    /// Forgets what became of the systems.
    void start(const QString& intoFolder, WktDialect inDialect);

    /// Looks whether the next system's file is there; how much of all is done then.
    double look();

    /// How many of the files were there.
    int existing() const;

    /// Saves the next system, or waits some milliseconds for its file to be written; how much of all is done then. No
    /// file is overwritten but those that were there when look() looked, and these only with `overwriting`.
    double save(bool overwriting);

    /// The systems that were not saved, and those of which the form does not hold all, come first.
    void sortByResult();

    /// Those that are still to be saved are left out, but for one whose file is being written.
    void end();

    /// How many were saved and how many left out, and why, in lines.
    QString summary() const;

    /// The summary, and a line for every system that was not saved whole: its name, its file and what became of it,
    /// parted by tabs.
    QString report() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    enum class State { LeftOut, There, SavedInPart, Planned, Saved };

    struct Row {
        QString system;
        QString file;
        QString remark; ///< on what was saved, or why nothing was
        State state = State::Planned;
        bool isThere = false; ///< the file, before the saving
    };

    const IDictionary* recordOf(const Row& row) const;
    bool isDone(Row& row, bool overwriting);
    bool beginToWrite(Row& row, bool overwriting);
    void endWriting(Row& row);
    static void addOlder(Row& row);
    static QString resultText(const Row& row);
    QStringList remarks(bool isSaved) const;
    double done(int row) const;

    ICoordSystem& catalogue;
    const IDictionary& shown;
    QString shownName;
    QString shownGroup; ///< empty when no group holds the shown system
    QStringList groupNames;
    QString group;
    QString folder;
    WktDialect dialect;
    FileNames names;
    QVector<Row> rows;
    std::future<QString> writing; ///< the file of the row to save: gives the error, empty without one
    int next = 0;                 ///< row to name, to look at or to save
};
