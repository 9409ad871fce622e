#pragma once

#include <QByteArrayList>
#include <QMap>

class ICoordSystem;

/// All that a catalogue holds of one kind, as text, for comparing.
struct CatalogueText {
    /// "group" and "group,system" in the catalogue's order.
    QByteArrayList order;
    /// The record's keys, texts and numbers, by "group,system".
    QMap<QByteArray, QByteArray> records;

    static CatalogueText systems(ICoordSystem& catalogue);
    /// The ellipsoids and the geoids, as the groups "ellipsoid" and "geoid".
    static CatalogueText ellipsoidsAndGeoids(ICoordSystem& catalogue);

    /// Which records both have, but with other values in `other`.
    QByteArrayList changedIn(const CatalogueText& other) const;
    /// Which records `other` has and this has not.
    QByteArrayList addedIn(const CatalogueText& other) const;

    CatalogueText withoutEmptyGroups() const;

    /// What differs first, for a message; empty when nothing does.
    QByteArray difference(const CatalogueText& other) const;

    bool operator==(const CatalogueText& other) const { return order == other.order && records == other.records; }
    bool operator!=(const CatalogueText& other) const { return !(*this == other); }
};
