#include "panel/record/RecordWkt.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/IDictionary.h"
#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"

#include <QString>

QByteArray recordWkt(const IDictionary& record, WktDialect dialect, bool indented) {
    namespace Key = CoordParamKey;
    IProjectionModule* const module = projectionModule();
    const QByteArray definition = coordParamToProjDefine(record);
    if (!module || definition.isEmpty())
        return {};
    const auto text = [&](const char* key) { return QString::fromLocal8Bit(record.getValue(key)).toUtf8(); };
    return module->exportWkt(definition, {text(Key::name), text(Key::ellipsoidName), text(Key::datumName)}, dialect,
                             indented);
}
