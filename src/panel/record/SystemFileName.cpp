#include "panel/record/SystemFileName.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/record/FileNames.h"

QString SystemFileName::of(const IDictionary& record, const QString& suffix) {
    return FileNames('.' + suffix).add(QString::fromLocal8Bit(record.getValue(CoordParamKey::name)));
}
