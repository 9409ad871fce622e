#include "support/Script.h"

#include "support/TextTable.h"

#include <QRegularExpression>
#include <QTest>

#include <cmath>

namespace {

QStringList parts(const QByteArray& text) {
    return QString::fromUtf8(text).replace('~', ' ').split("; ", Qt::SkipEmptyParts);
}

bool fits(const QString& seen, const QString& text) {
    static const QRegularExpression number("^-?[0-9.]+"), near("^(-?[0-9.]+)±([-0-9.e]+)$");
    const QRegularExpressionMatch tolerance = near.match(text), found = number.match(seen);
    if (tolerance.hasMatch())
        return found.hasMatch() && std::abs(found.captured().toDouble() - tolerance.captured(1).toDouble()) <=
                                       tolerance.captured(2).toDouble();
    QStringList fixed;
    for (const QString& part : text.split('*'))
        fixed << QRegularExpression::escape(part);
    const QRegularExpression form(QRegularExpression::anchoredPattern(fixed.join(".*")),
                                  QRegularExpression::DotMatchesEverythingOption);
    return form.match(seen).hasMatch();
}

} // namespace

Script::Script() = default;
Script::~Script() = default;

void Script::addRows(std::initializer_list<const char*> files) {
    QTest::addColumn<QString>("start");
    QTest::addColumn<QList<QByteArrayList>>("steps");
    QList<QByteArrayList> table;
    for (const char* file : files)
        table += textTable(file);
    while (!table.isEmpty()) {
        const QByteArrayList head = table.takeFirst();
        QVERIFY2(head[0].startsWith("= "), head[0]);
        QList<QByteArrayList> steps;
        while (!table.isEmpty() && !table.first()[0].startsWith("= "))
            steps << table.takeFirst();
        QTest::newRow(head[0].mid(2)) << QString::fromUtf8(head.value(1)) << steps;
    }
}

void Script::play() {
    QFETCH(QList<QByteArrayList>, steps);
    QVERIFY(!steps.isEmpty());
    for (const QByteArrayList& step : steps) {
        for (const QString& part : parts(step[0]))
            act(part.section('=', 0, 0), part.contains('=') ? part.section('=', 1) + "" : QString());
        QStringList wrong;
        for (const QString& part : parts(step.value(1))) {
            const QString seen = see(part.section('=', 0, 0));
            if (!fits(seen, part.section('=', 1)))
                wrong << part + "\n   is " + seen;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(step[0] + "\n   " + wrong.join("\n   ")));
    }
}

void Script::act(const QString& word, const QString& text) {
    QVERIFY2(acts.contains(word), qPrintable("No act: " + word));
    acts[word](text);
}

QString Script::see(const QString& what) {
    const QString word = what.section(':', 0, 0);
    return sights.contains(word) ? sights[word](what.section(':', 1)) : "no such sight";
}
