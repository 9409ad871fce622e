#include "catalogue/File.h"

#include "platform/utility/FileReplacement.h"

bool process_replace_file(const QString& path, const QByteArray& content, QString* error) {
    FileReplacement replacement(FileReplacement::behindLinks(path));
    if (replacement.prepare(content) && replacement.commit())
        return true;
    *error = replacement.errorString();
    return false;
}
