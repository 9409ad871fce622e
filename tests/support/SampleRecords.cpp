#include "support/SampleRecords.h"

#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"
#include "support/TextTable.h"

#include <algorithm>

SampleRecord SampleRecord::with(const QByteArray& key, const QByteArray& text) const {
    SampleRecord changed = *this;
    const auto found = std::find_if(changed.values.begin(), changed.values.end(),
                                    [&](const auto& value) { return value.first == key; });
    if (found == changed.values.end())
        changed.values.append({key, text});
    else
        found->second = text;
    return changed;
}

DictionaryGuard SampleRecord::record() const {
    DictionaryGuard record;
    for (const auto& value : values)
        record->setText(value.first, value.second);
    return record;
}

std::unique_ptr<IProjectedSystem> SampleRecord::system() const {
    return projectionModule()->createSystem(coordParamToProjDefine(*record()));
}

const QVector<SampleRecord>& SampleRecord::all() {
    static const QVector<SampleRecord> records = [] {
        QVector<SampleRecord> read;
        const QByteArray onGrs80 = "ellipsoid_name=GRS~1980 ellipsoid_a=6378137 ellipsoid_f=298.257222101 _7type=0 ";
        for (const QByteArrayList& row : textTable(SAMPLES)) {
            SampleRecord sample{row[0], {{"name", row[0]}}};
            for (const QByteArray& item : (onGrs80 + row[1]).split(' ')) {
                const QByteArray key = item.split('=').first();
                sample = sample.with(key, item.mid(key.size() + 1).replace('~', ' '));
            }
            read << sample;
        }
        return read;
    }();
    return records;
}

const SampleRecord& SampleRecord::named(const QByteArray& title) {
    return *std::find_if(all().begin(), all().end(), [&](const SampleRecord& record) { return record.title == title; });
}
