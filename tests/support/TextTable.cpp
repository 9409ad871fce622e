#include "support/TextTable.h"

#include "support/Files.h"
#include "support/RoomTest.h"

#include <QTest>

QList<QByteArrayList> textTable(const char* file) {
    QList<QByteArrayList> rows;
    for (const QByteArray& line : contentOf(RoomTest::dataPath(file)).split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        QByteArrayList columns;
        for (QByteArray column : line.split('|')) {
            column = column.trimmed().replace("\\t", "\t").replace("\\n", "\n").replace("\\r", "\r");
            for (int at = 0; (at = column.indexOf("\\x", at)) >= 0; ++at)
                column.replace(at, 4, QByteArray::fromHex(column.mid(at + 2, 2)));
            columns.append(column);
        }
        rows.append(columns);
    }
    return rows;
}

void textRows(const char* file) {
    QTest::addColumn<QByteArrayList>("columns");
    const QList<QByteArrayList> table = textTable(file);
    QVERIFY2(!table.isEmpty(), file);
    for (const QByteArrayList& columns : table)
        QTest::newRow(columns.first()) << columns;
}

QByteArrayList textColumns(int count) {
    QFETCH(QByteArrayList, columns);
    if (columns.size() != count)
        qFatal("%s: not %d columns", columns.first().constData(), count);
    return columns;
}
