#pragma once

#include "catalogue/DictionaryGuard.h"

#include <QPair>
#include <QStringList>
#include <QVector>

#include <memory>

/// Records in order, each under a name of its own: systems of a group, ellipsoids or geoids.
class RecordingList {
public:
    IDictionary* find(const QString& name) const;
    QStringList names() const;
    int count() const;

    /// Stores a copy of `record` under `name`, at its old place or else at `index`. Returns the copy.
    IDictionary* put(const QString& name, const IDictionary* record, int index);
    IDictionary* append(const QString& name, const IDictionary* record);
    /// Appends a record of key, text, key, text ...; a key with a null text is left out.
    IDictionary* append(const QString& name, const QStringList& values);
    void remove(const QString& name);
    bool rename(const QString& oldName, const QString& newName);

private:
    QVector<QPair<QString, std::shared_ptr<DictionaryGuard>>> entries;
};
