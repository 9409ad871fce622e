#pragma once

#include "support/TextTable.h"

#include <QMap>
#include <QRegularExpression>

#include <cmath>
#include <functional>

/// What is done and what is seen then, told in a text file of the test's folder. A script begins with "= title |
/// start", what `start` means is the test's own; then come its steps, "done | seen", each side with any number of
/// parts, parted by "; ":
///   done: "word" or "word=text" is one of the acts
///   seen: "word=text" is what one of the sights gives, and "word:name=text" what it gives for that name. In the text
///   "*"
///         stands for anything, and "500±0.1" for any number (with whatever behind it) that is no farther off.
/// "~" stands for a blank.
class Script {
public:
    using Act = std::function<void(const QString& text)>;
    using Sight = std::function<QString(const QString& name)>;

    virtual ~Script() = default;

    /// Makes the files' scripts rows of the test: for its `_data()`, with the columns "start" and "steps".
    static void addRows(std::initializer_list<const char*> files) {
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

    /// Plays the row's script.
    void play() {
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

    QMap<QString, Act> acts;
    QMap<QString, Sight> sights;

protected:
    virtual void act(const QString& word, const QString& text) {
        QVERIFY2(acts.contains(word), qPrintable("No act: " + word));
        acts[word](text);
    }

    virtual QString see(const QString& what) {
        const QString word = what.section(':', 0, 0);
        return sights.contains(word) ? sights[word](what.section(':', 1)) : "no such sight";
    }

private:
    static QStringList parts(const QByteArray& text) {
        return QString::fromUtf8(text).replace('~', ' ').split("; ", Qt::SkipEmptyParts);
    }

    static bool fits(const QString& seen, const QString& text) {
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
};
