#pragma once

#include <QByteArray>
#include <QVector>

/// The items of a PROJ.4 definition as PROJ reads them: "+" is optional, blanks around "=" don't count, and of several
/// items with one key the first holds.
class ProjItems {
public:
    explicit ProjItems(const QByteArray& definition);

    bool has(const char* key) const { return find(key) != nullptr; }

    /// How many items have this key.
    int count(const char* key) const;

    /// The item's value; empty when it has none or is missing.
    QByteArray text(const char* key) const;

    /// The item's value in the C locale; `fallback` when the item is missing, NaN when it is no finite number.
    double number(const char* key, double fallback) const;

    /// As number(), for an angle in degrees: decimal degrees, PROJ's form 2d20'14.025"E, or radians with "r" behind
    /// them.
    double angle(const char* key, double fallback) const;

    /// The keys with values of the definition, in its order.
    struct Item {
        QByteArray key;
        QByteArray value;
    };
    const QVector<Item>& all() const { return items; }

    static double toNumber(const QByteArray& text);
    static double toAngle(const QByteArray& text);

private:
    const Item* find(const char* key) const;

    QVector<Item> items;
};
