#pragma once

#include <QString>

class IDictionary;

namespace SystemFileName {

/// The name of the record's system as a file name that every desktop takes, with that suffix.
QString of(const IDictionary& record, const QString& suffix);

} // namespace SystemFileName
