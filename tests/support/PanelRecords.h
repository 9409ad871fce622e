#pragma once

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"

#include <QByteArrayList>
#include <QMetaType>
#include <QStringList>

Q_DECLARE_METATYPE(ProjectionMethod)

/// Records for the panel's tests.
namespace PanelRecords {

/// What a system has that was just created in a group that holds others.
DictionaryGuard fresh();

/// What an import writes, and a key that the panel does not know.
DictionaryGuard imported(ProjectionMethod method);

/// Changes the record: "key=text" sets a text ("~" stands for a blank), a key alone is removed.
void change(IDictionary& record, const QByteArrayList& changes);

/// "British grid" (a sample), "imported 9" (by method) or "fresh", and changes to it behind ", ".
DictionaryGuard of(const QString& text);

/// The keys whose text or number differs, or that only one record has, in alphabetical order.
QStringList changedKeys(const QStringList& before, const IDictionary& after);

} // namespace PanelRecords
