#pragma once

#include "support/Files.h"

#include <QByteArrayList>
#include <QTest>
#include <QVector>

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

/// Makes such a table the rows of a test, which takes the columns with QFETCH(QByteArray, name). The first column is
/// the row's title as well.
inline void textRows(const char* file, const QVector<const char*>& names) {
    for (const char* name : names)
        QTest::addColumn<QByteArray>(name);
    const QList<QByteArrayList> table = textTable(file);
    QVERIFY2(!table.isEmpty(), file);
    for (const QByteArrayList& columns : table) {
        QVERIFY2(columns.size() == names.size(), columns.first());
        QTestData& row = QTest::newRow(columns.first());
        for (const QByteArray& column : columns)
            row << column;
    }
}
