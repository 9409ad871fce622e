#include "panel/computing/PointReader.h"

#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <cmath>

namespace {

const QList<QByteArray> columnNames{"Lat", "Lon", "H", "E", "N", "Name", "-"};

QByteArray described(const PointLayout& layout) {
    QByteArray text(1, layout.separator == '\t' ? 't' : layout.separator == ' ' ? 'b' : layout.separator);
    text += (layout.decimalComma ? "c" : "") + QByteArray(layout.hasHeading ? "h" : "");
    for (const PointColumn column : layout.columns)
        text += ' ' + columnNames[int(column)];
    return text;
}

QString described(const PointTable& table, std::size_t row) {
    QString text;
    for (std::size_t i = 0; i < PointTable::numberCount; ++i) {
        const double value = table.given(row, PointColumn(i));
        text += (std::isnan(value) ? "-" : QString::number(value, 'g', 12)) + ' ';
    }
    return (text + QString::fromStdString(std::string(table.name(row))) + ' ' + table.problem(row)).trimmed();
}

PointTable read(const QByteArray& bytes, int piece, double metresPerUnit = 1.0) {
    PointTable table;
    PointReader reader(PointLayout::guess(PointReader::decodedHead(bytes)), metresPerUnit, table);
    for (int at = 0; at < bytes.size(); at += piece)
        reader.add(bytes.mid(at, piece));
    reader.finish();
    return table;
}

} // namespace

class PointReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { textRows("points.txt"); }

    /// In one piece, and byte by byte.
    void texts() {
        const auto [title, text, layout, rows] = textRow<4>();
        QCOMPARE(described(PointLayout::guess(PointReader::decodedHead(text))), layout);
        for (const int piece : {1, 7, 100000}) {
            const PointTable table = read(text, piece);
            QStringList seen;
            for (std::size_t row = 0; row < table.size(); ++row) {
                seen << described(table, row);
                QCOMPARE(table.line(row).empty(), table.isSound(row));
            }
            QCOMPARE(seen.join(" / "), QString::fromUtf8(rows).replace("  /", " /"));
        }
    }

    void lineOfAnyLength() {
        const PointTable table = read("A,1.5,2.5\nB," + QByteArray(3000000, '7') + ",1\nC,3.5,4.5\n", 65536);
        QCOMPARE(table.size(), std::size_t(3));
        QVERIFY(table.isSound(0) && table.isSound(2));
        QVERIFY(table.problem(1).startsWith("The line is too long"));
        QCOMPARE(table.line(1).size(), PointReader::longestLine);
    }

    void unitOfLength() {
        const PointTable table = read("A,100,2000000,1000000\n", 100, 0.3048);
        QCOMPARE(table.given(0, PointColumn::Easting), 609600.0);
    }

    void refusal_data() {
        const Rows<QByteArray, bool> row({"head", "refused"});
        row("nothing", "", true);
        row("blanks", " \r\n\n", true);
        row("a mark", "\xef\xbb\xbf", true);
        row("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), true);
        row("a compressed table", QByteArray("PK\3\4\x14\0\6\0", 8), true);
        row("control characters", "a\1\2\3b", true);
        row("a point", "A\t1\t2\r\n", false);
        row("UTF-16",
            QByteArray("\xff\xfe"
                       "1\0",
                       4),
            false);
    }

    void refusal() {
        QFETCH(QByteArray, head);
        QFETCH(bool, refused);
        QCOMPARE(PointReader::refusal(head).isEmpty(), !refused);
    }
};

ROOM_TEST(PointReaderTest)
#include "PointReaderTest.moc"
