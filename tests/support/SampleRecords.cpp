#include "support/SampleRecords.h"

#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"
#include "support/TextTable.h"

#include <algorithm>

namespace {

/// A record of "key=value" items separated by blanks ("~" stands for a blank), on GRS 1980 unless it says otherwise.
SampleRecord sample(const QByteArray& title, const QByteArray& items) {
    SampleRecord record{title,
                        {{"name", title},
                         {"ellipsoid_name", "GRS 1980"},
                         {"ellipsoid_a", "6378137"},
                         {"ellipsoid_f", "298.257222101"},
                         {"_7type", "0"}}};
    for (const QByteArray& item : items.split(' ')) {
        const int equals = item.indexOf('=');
        record = record.with(item.left(equals), item.mid(equals + 1).replace('~', ' '));
    }
    return record;
}

} // namespace

SampleRecord SampleRecord::with(const QByteArray& key, const QByteArray& text) const {
    SampleRecord changed = *this;
    for (auto& value : changed.values) {
        if (value.first == key) {
            value.second = text;
            return changed;
        }
    }
    changed.values.append({key, text});
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
        for (const QByteArrayList& row : textTable("samples.txt"))
            read << sample(row[0], row[1]);
        return read;
    }();
    return records;
}

const SampleRecord& SampleRecord::named(const QByteArray& title) {
    return *std::find_if(all().begin(), all().end(), [&](const SampleRecord& record) { return record.title == title; });
}
