#include "panel/record/PastedDefinition.h"

#include "catalogue/CoordParamKey.h"
#include "import/CoordParamToProjDefine.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

class PastedDefinitionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pasted_data() { textRows("pasted.txt"); }

    void pasted() {
        const auto [title, text, start, words] = textRow<4>();
        const QString given = QString::fromUtf8(text);
        const PastedDefinition pasted(given);
        const QByteArray definition = coordParamToProjDefine(pasted.values());
        const QString said = pasted.isHeld() ? pasted.understood().join("; ") : pasted.reason();
        QVERIFY2(definition.startsWith(start) && pasted.isHeld() != start.isEmpty(), definition + said.toUtf8());
        for (const QByteArray& part : words.split('~'))
            QVERIFY2(said.contains(QString::fromUtf8(part)), qPrintable(said));
        QCOMPARE(said.isEmpty(), given.trimmed().isEmpty());
        if (said.contains("(line 1,"))
            QVERIFY2(said.contains(QString("column %1)").arg(pasted.place() + 1)), qPrintable(said));
        QCOMPARE(QString::fromLocal8Bit(pasted.values().getValue(CoordParamKey::pastedText)),
                 pasted.isHeld() ? given : QString());
    }

    /// Whatever is pasted: an answer.
    void anything() {
        const QString nested = QString("PROJCS[\"a\",").repeated(20000), open = QString("{\"a\":[").repeated(20000);
        for (const QString& text : {nested, open, QString(5000000, ' '), QString(5000000, 'x'), QString(5000000, '"'),
                                    "+proj=" + QString(5000000, 'x'), QString("+x=1 ").repeated(900)}) {
            QVERIFY2(!PastedDefinition(text).isHeld(), qPrintable(text.left(20)));
        }
    }
};

ROOM_TEST(PastedDefinitionTest)
#include "PastedDefinitionTest.moc"
