#include "panel/record/RecordWkt.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "panel/record/PanelText.h"
#include "panel/record/RecordDifferences.h"
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

QString wktRemark(const IDictionary& record, const QByteArray& wkt) {
    const DictionaryGuard imported;
    if (!WktToCoordParam::write(wkt, imported.get()))
        return PanelText::tr("This form can't be imported again.");
    const QStringList lost = recordDifferences(record, *imported);
    if (!lost.isEmpty())
        return PanelText::tr("Does not come back with an import of this form: %1.").arg(lost.join(", "));
    // GDAL and PROJ read the method with false easting and northing at the projection centre.
    if (dictionary_number(record, CoordParamKey::projectType, 0.0) ==
        double(ProjectionMethod::ObliqueMercatorTwoPoints))
        return PanelText::tr("Other software may count easting and northing from the natural origin.");
    return QString();
}
