#pragma once

#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/IDictionary.h"

#include <QByteArrayList>
#include <QMap>

/// All that a catalogue holds of one kind, as text, for comparing.
struct CatalogueText {
    static CatalogueText systems(ICoordSystem& catalogue) {
        CatalogueText text;
        for (const QByteArray& groupName : split(catalogue.getGroupNames())) {
            text.order << groupName;
            ICoordSysGroup* const group = catalogue.getGroup(groupName.constData());
            for (const QByteArray& name : split(group ? group->getCoordSystemNames() : nullptr))
                text.add(groupName + ',' + name, group->getCoordSystem(name.constData()));
        }
        return text;
    }

    /// The ellipsoids and the geoids, as the groups "ellipsoid" and "geoid".
    static CatalogueText ellipsoidsAndGeoids(ICoordSystem& catalogue) {
        CatalogueText text;
        for (const QByteArray& name : split(catalogue.getEllipsoidNames()))
            text.add("ellipsoid," + name, catalogue.getEllipsoid(name.constData()));
        for (const QByteArray& name : split(catalogue.getGeoidNames()))
            text.add("geoid," + name, catalogue.getGeoid(name.constData()));
        return text;
    }

    /// Which records both have, but with other values in `other`.
    QByteArrayList changedIn(const CatalogueText& other) const {
        QByteArrayList changed;
        for (auto record = records.begin(); record != records.end(); ++record) {
            if (other.records.value(record.key(), *record) != *record)
                changed << record.key();
        }
        return changed;
    }

    /// Which records `other` has and this has not.
    QByteArrayList addedIn(const CatalogueText& other) const {
        QByteArrayList added = other.records.keys();
        added.erase(
            std::remove_if(added.begin(), added.end(), [&](const auto& name) { return records.contains(name); }),
            added.end());
        return added;
    }

    CatalogueText withoutEmptyGroups() const {
        CatalogueText text{{}, records};
        for (int i = 0; i < order.size(); ++i) {
            if (order[i].contains(',') || order.value(i + 1).startsWith(order[i] + ','))
                text.order << order[i];
        }
        return text;
    }

    /// What differs first, for a message; empty when nothing does.
    QString difference(const CatalogueText& other) const {
        QByteArrayList differing{order.join(" | "), other.order.join(" | ")};
        if (order == other.order) {
            const QByteArray name = changedIn(other).value(0);
            differing = QByteArrayList{records.value(name), other.records.value(name)};
        }
        return differing[0] == differing[1] ? QString() : QString::fromLocal8Bit(differing.join("\n  not\n"));
    }

    QByteArrayList order;                 ///< "group" and "group,system" in the catalogue's order
    QMap<QByteArray, QByteArray> records; ///< the record's keys, texts and numbers, by "group,system"

private:
    static QByteArrayList split(const char* names) {
        QByteArrayList all = QByteArray(names).split(',');
        all.removeAll(QByteArray());
        return all;
    }

    void add(const QByteArray& name, const IDictionary* record) {
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
        order << name;
        records.insert(name, text);
    }
};
