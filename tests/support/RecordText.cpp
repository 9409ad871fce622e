#include "support/RecordText.h"

#include "catalogue/IDictionary.h"

#include <QString>

QStringList recordText(const IDictionary& record) {
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
