#pragma once

#include "support/Files.h"

#include <QByteArrayList>

/// The rows of a table in a text file of the test's folder: columns parted by "|", blanks around them dropped, "\t" for
/// a tab; empty lines and those that begin with "#" apart.
inline QList<QByteArrayList> textTable(const char* file) {
    QList<QByteArrayList> rows;
    for (QByteArray line : contentOf(QString(TEST_DATA_DIR "/%1").arg(file)).split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        QByteArrayList columns;
        for (const QByteArray& column : line.replace("\\t", "\t").split('|'))
            columns.append(column.trimmed());
        rows.append(columns);
    }
    return rows;
}
