#include "panel/record/SystemFileName.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"

#include <QRegularExpression>

QString SystemFileName::of(const IDictionary& record, const QString& suffix) {
    QString name = QString::fromLocal8Bit(record.getValue(CoordParamKey::name)).simplified();
    name.replace(QRegularExpression("[\\x00-\\x1f<>:\"/\\\\|?*]"), "_");
    return name + '.' + suffix;
}
