#pragma once

#include "catalogue/Dictionary.h"

/// Writes the path that the printf-style `format` gives for the values behind it into `buffer` of `size` bytes, with
/// "$(APP_DIR)" in the format replaced by the folder of the running executable ("/" as separator, no trailing "/").
/// The values are never searched for "$(APP_DIR)". The result is always NUL-terminated (for a size of 1 or more) and
/// never cut: a path that does not fit gives an empty text, so that it can't name another file.
void process_resolve_path(char* buffer, int size, const char* format, ...) VORN_PRINTF_CHECK(3, 4);
