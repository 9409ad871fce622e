#pragma once

#include <QByteArray>

class IDictionary;
enum class WktDialect;

/// The record as WKT in UTF-8, with the names that it holds; see IProjectionModule::exportWkt(). Empty when the record
/// defines no projection, when the dialect can't express it, and without the projection module.
QByteArray recordWkt(const IDictionary& record, WktDialect dialect, bool indented);
