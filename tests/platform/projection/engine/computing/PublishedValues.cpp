#include "PublishedValues.h"

#include <QFile>
#include <QHash>

namespace {

/// Decimal degrees, or degrees, minutes and seconds as 52:09:22.178N.
double number(QByteArray text, int line) {
    double sign = 1.0;
    if (!text.isEmpty() && QByteArray("NSEW").contains(text.back())) {
        sign = text.endsWith('S') || text.endsWith('W') ? -1.0 : 1.0;
        text.chop(1);
    }
    double value = 0.0;
    double unit = 1.0;
    for (const QByteArray& part : text.split(':')) {
        bool ok = false;
        value += part.toDouble(&ok) * unit;
        if (!ok)
            qFatal("line %d: \"%s\" is no number", line, text.constData());
        unit /= 60.0;
    }
    return sign * value;
}

} // namespace

QVector<PublishedSystem> readPublishedValues(const QByteArray& path) {
    static const QHash<QByteArray, int> rowSizes{{"point", 5}, {"scale", 4}, {"turn", 4}, {"radius", 3}, {"shift", 7}};
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("can't read %s", path.constData());
    QVector<PublishedSystem> systems;
    for (int line = 1; !file.atEnd(); ++line) {
        const QByteArray text = file.readLine().split('#').first().simplified();
        const QByteArray what = text.split(' ').first();
        const QByteArray rest = text.mid(what.size() + 1);
        if (text.isEmpty() || what == "source")
            continue;
        if (what == "system") {
            systems.append(PublishedSystem{rest, {}, {}});
        } else if (systems.isEmpty()) {
            qFatal("line %d stands before the first system", line);
        } else if (rowSizes.contains(what)) {
            PublishedRow row{line, what, {}};
            for (const QByteArray& item : rest.split(' '))
                row.numbers.append(number(item, line));
            if (row.numbers.size() != rowSizes.value(what))
                qFatal("line %d: %s has %d numbers", line, what.constData(), rowSizes.value(what));
            systems.last().rows.append(row);
        } else {
            const double degreesPerUnit = what.startsWith("_7r") ? 1.0 / 3600.0 : 1.0;
            systems.last().record.append({what, QByteArray::number(number(rest, line) * degreesPerUnit, 'g', 17)});
        }
    }
    return systems;
}
