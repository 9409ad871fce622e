#include "CatalogueText.h"

#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/IDictionary.h"

namespace {

QByteArrayList split(const char* names) {
    QByteArrayList all = QByteArray(names).split(',');
    all.removeAll(QByteArray());
    return all;
}

QByteArray textOf(const IDictionary* record) {
    QByteArray text;
    for (int i = 0; record && i < record->count(); ++i) {
        const char* key = record->getKey(i);
        text.append(key).append('=').append(record->getValue(key));
        double number = 0.0;
        // The files keep it where the text says less.
        if (record->getNumber(key, &number) && number != QByteArray(record->getValue(key)).toDouble())
            text.append('[').append(QByteArray::number(number, 'g', 17)).append(']');
        text.append('\n');
    }
    return text;
}

} // namespace

CatalogueText CatalogueText::systems(ICoordSystem& catalogue) {
    CatalogueText text;
    for (const QByteArray& groupName : split(catalogue.getGroupNames())) {
        text.order << groupName;
        ICoordSysGroup* const group = catalogue.getGroup(groupName.constData());
        for (const QByteArray& name : split(group ? group->getCoordSystemNames() : nullptr)) {
            text.order << groupName + ',' + name;
            text.records.insert(text.order.last(), textOf(group->getCoordSystem(name.constData())));
        }
    }
    return text;
}

CatalogueText CatalogueText::ellipsoidsAndGeoids(ICoordSystem& catalogue) {
    CatalogueText text;
    for (const QByteArray& name : split(catalogue.getEllipsoidNames())) {
        text.order << "ellipsoid," + name;
        text.records.insert(text.order.last(), textOf(catalogue.getEllipsoid(name.constData())));
    }
    for (const QByteArray& name : split(catalogue.getGeoidNames())) {
        text.order << "geoid," + name;
        text.records.insert(text.order.last(), textOf(catalogue.getGeoid(name.constData())));
    }
    return text;
}

QByteArrayList CatalogueText::changedIn(const CatalogueText& other) const {
    QByteArrayList changed;
    for (auto record = records.begin(); record != records.end(); ++record) {
        const auto found = other.records.find(record.key());
        if (found != other.records.end() && *found != *record)
            changed << record.key();
    }
    return changed;
}

QByteArrayList CatalogueText::addedIn(const CatalogueText& other) const {
    QByteArrayList added;
    for (auto record = other.records.begin(); record != other.records.end(); ++record) {
        if (!records.contains(record.key()))
            added << record.key();
    }
    return added;
}

CatalogueText CatalogueText::withoutEmptyGroups() const {
    CatalogueText text{{}, records};
    for (int i = 0; i < order.size(); ++i) {
        if (order[i].contains(',') || (i + 1 < order.size() && order[i + 1].startsWith(order[i] + ',')))
            text.order << order[i];
    }
    return text;
}

QByteArray CatalogueText::difference(const CatalogueText& other) const {
    if (order != other.order)
        return order.join(" | ") + "\n  not\n" + other.order.join(" | ");
    for (const QByteArray& name : changedIn(other))
        return records[name] + "\n  not\n" + other.records[name];
    return QByteArray();
}
