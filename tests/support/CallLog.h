#pragma once

#include <QStringList>

class QByteArray;

/// What the parts of the double share: the log of the calls, in order and with their arguments, and scripted answers.
struct CallLog {
    /// Records the call and returns its argument.
    QString logged(const QString& call, const char* argument);
    const char* listed(const QString& call, QByteArray& storage, const QStringList& names);

    QStringList calls;
    bool refuseRename = false; ///< renameGroup and renameCoordSystem answer 0
    bool nullLists = false;    ///< every list of names is null
};
