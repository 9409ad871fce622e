#pragma once

#include <QByteArray>

/// A name as readers of WKT compare names: in lower case and without blanks and signs between its words, so that
/// "Transverse_Mercator" and "Transverse Mercator" are one.
QByteArray plainName(const QByteArray& name);
