#pragma once

#include "catalogue/IDictionary.h"

#if defined(__MINGW32__) // where "printf" stands for the system's own, which does not print for these functions
#define VORN_PRINTF_CHECK(formatIndex, firstArgument) __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#elif defined(__GNUC__)
#define VORN_PRINTF_CHECK(formatIndex, firstArgument) __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define VORN_PRINTF_CHECK(formatIndex, firstArgument)
#endif

/// A new, empty dictionary that belongs to the caller. The argument is always 0.
IDictionary* dictionary_get_instance(int kind);

/// Frees the dictionary that `*dictionary` holds and sets the variable to null. A null pointer or variable is ignored.
void dictionary_release_instance(IDictionary** dictionary);

/// Copies the listed keys (`keys`, separated by `separator`) from `source` to `destination`, each with the number
/// behind its text. A key that the source lacks is left as it is in the destination; empty parts of the list are
/// skipped.
void dictionary_copy(IDictionary* destination, const IDictionary* source, const char* keys, char separator);

/// Makes `destination` equal to `source`: same keys in the same order, same texts, same numbers.
void dictionary_assign(IDictionary* destination, const IDictionary* source);

/// Sets `key` to the text that the printf-style `format` gives for the values behind it, in the C locale whatever the
/// process's locale is. A format that is one floating-point conversion and nothing else ("%f") also keeps the number.
void dic_set_value(IDictionary* dictionary, const char* key, const char* format, ...) VORN_PRINTF_CHECK(3, 4);

/// The number that `key` holds: the number behind the text, else the text read in the C locale, else `fallback` when
/// the key is absent or its text is no finite number (blanks around it are allowed; "inf", "nan" and hexadecimal are
/// not).
double dictionary_number(const IDictionary& dictionary, const char* key, double fallback);

/// How many dictionaries are alive; tests use it to see that every record was released.
int dictionary_alive_count();
