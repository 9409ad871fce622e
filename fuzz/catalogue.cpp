// Any bytes as a catalogue's file: what was read of it is written and read the same, by its lines or as XML.

#include "platform/sdk/CatalogueFile.h"
#include "platform/sdk/FileMark.h"
#include "support/Support.h"

namespace {

bool sameRecords(const RecordList& left, const RecordList& right) {
    if (left.names() != right.names())
        return false;
    for (const CatalogueRecord& record : left) {
        const IDictionary& values = *record.values();
        const IDictionary& others = *right.find(record.name)->values();
        if (values.count() != others.count())
            return false;
        for (int i = 0; i < values.count(); ++i) {
            const char* const key = values.getKey(i);
            // A number that the text says as well is not written beside it.
            if (QByteArray(key) != others.getKey(i) || QByteArray(values.getValue(key)) != others.getValue(key) ||
                dictionary_number(values, key, 0.0) != dictionary_number(others, key, 0.0))
                return false;
        }
    }
    return true;
}

bool same(const RecordFile& left, const RecordFile& right) {
    return sameRecords(left.records, right.records);
}

bool same(const SystemFile& left, const SystemFile& right) {
    if (left.groups.names() != right.groups.names())
        return false;
    for (const CoordSysGroup& group : left.groups) {
        if (!sameRecords(group.systems, right.groups.find(group.name)->systems))
            return false;
    }
    return true;
}

template <class Read> void thereAndBack(Read read) {
    const QString written = scratchFile("written"), copied = scratchFile("copied");
    const auto first = read(scratchFile("input"));
    require(CatalogueFile::write(written, first), "what was read can be written");
    const auto second = read(written);
    require(second.condition == FileCondition::Whole, "what was written is whole");
    const QByteArray bytes = readScratch(written);
    require(CatalogueFile::write(copied, second) && readScratch(copied) == bytes, "what nobody asked for is copied");
    require(same(first, second), "what was written reads the same");
    require(CatalogueFile::write(copied, second) && readScratch(copied) == bytes, "a file does not change by itself");
    const QByteArray unmarked = bytes + '\n';
    writeScratch(copied, reinterpret_cast<const uint8_t*>(unmarked.constData()), size_t(unmarked.size()));
    const auto third = read(copied);
    require(third.condition == FileCondition::Whole && same(second, third), "by its lines it is what it is as XML");
    require(CatalogueFile::write(copied, third) && readScratch(copied) == bytes, "and is written as that");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    writeScratch(scratchFile("input"), data, size);
    thereAndBack([](const QString& path) { return CatalogueFile::readSystems(path); });
    thereAndBack([](const QString& path) { return CatalogueFile::readRecords(path, ellipsoidFile); });

    // With a mark that fits, which only intent puts there: whatever it says, nothing breaks.
    QByteArray marked(reinterpret_cast<const char*>(data), int(size));
    marked += FileMark::behind(ContentHash(marked));
    writeScratch(scratchFile("marked"), reinterpret_cast<const uint8_t*>(marked.constData()), size_t(marked.size()));
    const SystemFile forged = CatalogueFile::readSystems(scratchFile("marked"));
    require(same(forged, forged) && CatalogueFile::write(scratchFile("written"), forged), "any of it can be asked for");
    return 0;
}
