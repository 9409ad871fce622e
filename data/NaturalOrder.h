#pragma once

class QString;

/// Whether `left` stands before `right` when numbers in them are compared by value: "zone 2" before "zone 10", "CS IX"
/// before "CS X". A Roman number is a word of its own made of I, V and X.
bool naturalLess(const QString& left, const QString& right);
