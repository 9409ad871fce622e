#include "support/PanelRecords.h"

#include "support/RecordText.h"
#include "support/SampleRecords.h"

#include <cmath>

DictionaryGuard PanelRecords::fresh() {
    DictionaryGuard record;
    record->setText(CoordParamKey::name, "New");
    record->setText(CoordParamKey::ellipsoidName, "GRS 1980");
    dic_set_value(record.get(), CoordParamKey::ellipsoidA, "%f", 6378137.0);
    dic_set_value(record.get(), CoordParamKey::ellipsoidF, "%f", 298.257222101);
    return record;
}

DictionaryGuard PanelRecords::imported(ProjectionMethod method) {
    DictionaryGuard record = fresh();
    dic_set_value(record.get(), CoordParamKey::projectType, "%d", int(method));
    dic_set_value(record.get(), CoordParamKey::shiftType, "%d", 2);
    dic_set_value(record.get(), CoordParamKey::factor, "%f",
                  method == ProjectionMethod::TransverseMercator ? 1.0 : 0.9999);
    dic_set_value(record.get(), CoordParamKey::cuttingRadius, "%f", 6378137.0 * std::sqrt(0.75)); // of latitude 30
    const QByteArray numbers =
        "org_lon=9.1234567890123 org_lat=49.83333333333334 false_north=0 false_east=500000 parallel_1_lat=46.3 "
        "parallel_2_lat=50.1 p_r=53.31582047222222 lon1=8 lon2=10 lat1=46.3 lat2=50.1 _7dx=598.1 _7dy=73.7 _7dz=418.2 "
        "_7rx=5.6111111111111114e-05 _7ry=1.2499999999999999e-05 _7rz=-0.0006819444444444444 _7ppm=6.7";
    for (const QByteArray& item : numbers.split(' ')) {
        const int equals = item.indexOf('=');
        dic_set_value(record.get(), item.left(equals), "%f", item.mid(equals + 1).toDouble());
    }
    record->setText("a_key_of_another_version", " kept \"as\" it is ");
    return record;
}

void PanelRecords::change(IDictionary& record, const QByteArrayList& changes) {
    for (const QByteArray& item : changes) {
        const QByteArray key = item.split('=').first();
        if (key == item)
            record.remove(key);
        else
            record.setText(key, item.mid(key.size() + 1).replace('~', ' '));
    }
}

DictionaryGuard PanelRecords::of(const QString& text) {
    QByteArrayList parts;
    for (const QString& part : text.split(", "))
        parts << part.toLocal8Bit();
    const QByteArray name = parts.takeFirst();
    DictionaryGuard record = name == "fresh"               ? fresh()
                             : name.startsWith("imported") ? imported(ProjectionMethod(name.mid(9).toInt()))
                                                           : SampleRecord::named(name).record();
    change(*record, parts);
    return record;
}

QStringList PanelRecords::changedKeys(const QStringList& before, const IDictionary& after) {
    QStringList keys;
    const QStringList now = recordText(after);
    for (const QStringList& side : {before, now}) {
        for (const QString& line : side) {
            const QString key = line.section('=', 0, 0);
            if ((!before.contains(line) || !now.contains(line)) && !keys.contains(key))
                keys << key;
        }
    }
    keys.sort();
    return keys;
}
