#include "panel/record/RecordWkt.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "panel/record/PanelText.h"
#include "panel/record/RecordDifferences.h"
#include "platform/projection/IProjectionModule.h"

#include <QString>

#include <limits>

namespace {

/// How much of the record an import of the text does not bring back.
int lossOf(const IDictionary& record, const QByteArray& wkt) {
    const DictionaryGuard imported;
    const bool isRead = WktToCoordParam::write(wkt, imported.get());
    return isRead ? recordDifferences(record, *imported).size() : std::numeric_limits<int>::max();
}

} // namespace

QByteArray recordWkt(const IDictionary& record, WktDialect dialect, bool indented, const QByteArray& code) {
    namespace Key = CoordParamKey;
    IProjectionModule* const module = projectionModule();
    const QByteArray definition = coordParamToProjDefine(record);
    if (!module || definition.isEmpty())
        return {};
    const auto text = [&](const char* key) { return QString::fromLocal8Bit(record.getValue(key)).toUtf8(); };
    WktNames names{text(Key::name), text(Key::ellipsoidName), text(Key::datumName)};
    const QByteArray plain = module->exportWkt(definition, names, dialect, indented);
    if (code.isEmpty())
        return plain;
    names.code = code;
    const QByteArray identified = module->exportWkt(definition, names, dialect, indented);
    return lossOf(record, identified) > lossOf(record, plain) ? plain : identified;
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
