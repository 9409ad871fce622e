#include "catalogue/Path.h"

#include "platform/utility/ApplicationFolder.h"
#include "platform/utility/FormatText.h"

#include <cstring>

void process_resolve_path(char* buffer, int size, const char* format, ...) {
    if (!buffer || size <= 0)
        return;
    // The folder becomes part of the format, so a "%" in its name has to stand for itself.
    QByteArray resolvedFormat(format);
    resolvedFormat.replace("$(APP_DIR)", applicationFolder().toLocal8Bit().replace('%', "%%"));

    va_list arguments;
    va_start(arguments, format);
    const QByteArray path = formatText(resolvedFormat.constData(), arguments);
    va_end(arguments);

    if (path.size() < size)
        std::memcpy(buffer, path.constData(), size_t(path.size()) + 1);
    else
        buffer[0] = '\0';
}
