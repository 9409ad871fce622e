#pragma once

#include "catalogue/IDictionary.h"

#include <QString>
#include <QStringList>

/// A record as "key=text" lines in order, with the number behind the text in brackets where there is one.
inline QStringList recordText(const IDictionary& record) {
    QStringList lines;
    for (int i = 0; i < record.count(); ++i) {
        const char* key = record.getKey(i);
        lines << QString("%1=%2").arg(key, QString::fromLocal8Bit(record.getValue(key)));
        double number = 0.0;
        if (record.getNumber(key, &number))
            lines.last() += '[' + QString::number(number, 'g', 17) + ']';
    }
    return lines;
}
