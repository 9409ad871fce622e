#include "PastedSweep.h"

#include "RegistryEntry.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "panel/record/PastedDefinition.h"
#include "panel/record/RecordDifferences.h"

#include <cmath>
#include <cstdio>

bool PastedSweep::run() {
    const QVector<QByteArray> codes = registryCodes(context, options.registry, options.deprecatedToo);
    const QByteArray registry = options.registry;
    for (int i = 0; i < codes.size(); i += options.every) {
        const QByteArray& code = codes[i];
        const RegistryEntry entry(context, options.registry, code.constData());
        const QByteArray wkt = entry.wkt(PJ_WKT2_2019);
        const DictionaryGuard imported;
        WktToCoordParam::write(wkt, imported.get());
        compare("code", entry, registry + ':' + code, *imported);
        compare("URN", entry, "urn:ogc:def:crs:" + registry + "::" + code, *imported);
        compare("URL", entry, "http://www.opengis.net/def/crs/" + registry + "/0/" + code, *imported);
        compare("WKT 2", entry, wkt, *imported);
        compare("PROJJSON", entry, entry.projJson(), *imported);
        compare("PROJ", entry, entry.projText(), *imported);
    }
    std::printf("%s pasted\n  %-10s %6s %8s %9s %8s %6s %8s\n", options.registry, "", "same", "as text", "withheld",
                "refused", "other", "missing");
    bool ok = true;
    for (auto notation = byNotation.cbegin(); notation != byNotation.cend(); ++notation) {
        const Count& count = *notation;
        std::printf("  %-10s %6d %8d %9d %8d %6d %8d\n", notation.key().constData(), count.same, count.asText,
                    count.withheld, count.refused, count.other, count.missing);
        ok = ok && count.other == 0 && (count.refused == 0 || notation.key() == "PROJ");
    }
    return ok;
}

/// Within 1 mm at the places of the entry: with +datum=NAD83, PROJ goes on from WGS 84's ellipsoid, 0.1 mm off.
bool PastedSweep::isAsText(const RegistryEntry& entry, const QByteArray& text, const QByteArray& definition) const {
    QByteArray metres;
    for (const QByteArray& item : text.split(' ')) {
        if (!item.startsWith("+units=") && !item.startsWith("+to_meter=") && item != "+type=crs")
            metres += item + ' ';
    }
    const ProjObject theirs(proj_create(context, metres.constData()));
    const ProjObject ours(proj_create(context, QByteArray(definition).replace("+towgs84=", "+apart=").constData()));
    int places = 0;
    for (const RegistryEntry::Sample& sample : entry.samples()) {
        const PJ_COORD place = proj_coord(proj_torad(sample.longitude), proj_torad(sample.latitude), 0, 0);
        const PJ_COORD left = proj_trans(theirs.get(), PJ_FWD, place);
        const PJ_COORD right = proj_trans(ours.get(), PJ_FWD, place);
        if (!(std::hypot(left.xy.x - right.xy.x, left.xy.y - right.xy.y) < 1e-3))
            return false;
        ++places;
    }
    return places > 0;
}

void PastedSweep::compare(const char* notation, const RegistryEntry& entry, const QByteArray& text,
                          const IDictionary& imported) {
    Count& count = byNotation[notation];
    if (text.isEmpty()) {
        ++count.missing;
        return;
    }
    const PastedDefinition pasted(QString::fromUtf8(text));
    const bool isImported = coordParamDefinesProjection(imported);
    const DictionaryGuard values;
    dictionary_assign(values.get(), &pasted.values());
    dictionary_copy(values.get(), &imported, CoordParamKey::name, '\0');
    const bool isSame =
        isImported == pasted.isHeld() && (!isImported || recordDifferences(imported, *values).isEmpty());
    const bool isText = !isSame && pasted.isHeld() && QByteArray(notation) == "PROJ" &&
                        isAsText(entry, text, coordParamToProjDefine(*values));
    int& bin = isSame             ? (isImported ? count.same : count.withheld)
               : isText           ? count.asText
               : !pasted.isHeld() ? count.refused
                                  : count.other;
    ++bin;
    if (&bin == &count.other || (options.verbose && &bin == &count.refused))
        std::printf("  %s %s: %s\n", &bin == &count.other ? "OTHER" : "refused", text.constData(),
                    qPrintable(pasted.reason()));
}
