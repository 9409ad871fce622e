#pragma once

#include <QStringList>

class IDictionary;

/// A record as "key=text" lines in order, with the number behind the text in brackets where there is one.
QStringList recordText(const IDictionary& record);
