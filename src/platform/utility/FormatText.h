#pragma once

#include <QByteArray>

#include <cstdarg>

/// The text that the printf-style `format` gives for `arguments`, of any length, in the C locale whatever the process's
/// locale is. A null format, and one that the C library refuses, give an empty text. `arguments` is used up.
QByteArray formatText(const char* format, va_list arguments);
