#pragma once

#include <QByteArray>
#include <QHash>

#include <list>
#include <utility>

/// Entries in an order, each with a unique `name`: a QByteArray member that only this list sets. Finding, adding,
/// renaming and removing an entry cost the same however long the list is, and an entry stays where it is in memory.
///
/// Names are compared exactly. Lists of names are joined by ",", so a name is not empty and holds no ",".
template <class Entry> class NamedList {
public:
    static bool isName(const QByteArray& name) { return !name.isEmpty() && !name.contains(','); }

    /// Null when there is no entry of that name.
    Entry* find(const QByteArray& name) const {
        const auto found = positions.constFind(name);
        return found == positions.constEnd() ? nullptr : &**found;
    }

    /// Adds `entry` under `name`, first or last in the list; null when `name` is none or is taken.
    Entry* prepend(const QByteArray& name, Entry&& entry = {}) {
        return insert(entries.begin(), name, std::move(entry));
    }
    Entry* append(const QByteArray& name, Entry&& entry = {}) { return insert(entries.end(), name, std::move(entry)); }

    /// Keeps the entry's place. False, with nothing changed, when there is no `oldName`, or `newName` is none or is
    /// taken.
    bool rename(const QByteArray& oldName, const QByteArray& newName) {
        if (!positions.contains(oldName) || !isFree(newName))
            return false;
        const Position position = positions.take(oldName);
        position->name = newName;
        positions.insert(newName, position);
        joinedNames.clear();
        return true;
    }

    /// False when there is no entry of that name.
    bool remove(const QByteArray& name) {
        const auto found = positions.constFind(name);
        if (found == positions.constEnd())
            return false;
        entries.erase(*found);
        positions.erase(found);
        joinedNames.clear();
        return true;
    }

    bool isEmpty() const { return entries.empty(); }

    /// The names in order, joined by ",".
    const QByteArray& names() const {
        if (joinedNames.isEmpty() && !isEmpty()) {
            for (const Entry& entry : entries)
                joinedNames += entry.name + ',';
            joinedNames.chop(1);
        }
        return joinedNames;
    }

    auto begin() const { return entries.begin(); }
    auto end() const { return entries.end(); }

private:
    using Position = typename std::list<Entry>::iterator;

    bool isFree(const QByteArray& name) const { return isName(name) && !positions.contains(name); }

    Entry* insert(Position before, const QByteArray& name, Entry&& entry) {
        if (!isFree(name))
            return nullptr;
        const Position position = entries.insert(before, std::move(entry));
        position->name = name;
        positions.insert(name, position);
        joinedNames.clear();
        return &*position;
    }

    std::list<Entry> entries;
    QHash<QByteArray, Position> positions;
    mutable QByteArray joinedNames; ///< empty after a change, until it is asked for
};
