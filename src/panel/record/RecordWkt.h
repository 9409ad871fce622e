#pragma once

#include <QByteArray>

class IDictionary;
class QString;
enum class WktDialect;

/// The record as WKT in UTF-8, with the names that it holds; see IProjectionModule::exportWkt(). Empty when the record
/// defines no projection, when the dialect can't express it, and without the projection module. With `code`, EPSG's of
/// the registry's system that the record is, it bears that identifier, datum and area of use, unless that text would
/// not bring back by an import all that the text without them does.
QByteArray recordWkt(const IDictionary& record, WktDialect dialect, bool indented, const QByteArray& code = {});

/// What the text, a form of the record, does not hold of it, found by importing it; empty when it comes back whole.
QString wktRemark(const IDictionary& record, const QByteArray& wkt);
