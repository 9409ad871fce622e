#include "platform/sdk/FileBytes.h"

#include "platform/sdk/FileMark.h"
#include "platform/utility/ContentHasher.h"
#include "platform/utility/DiskCalls.h"

#include <QFileInfo>

FileBytes::FileBytes(const QString& path) : exists(QFileInfo::exists(path)) {
    isRead = exists && DiskCalls::read(path, &bytes);
    if (!isRead)
        return;
    const int lastLine = bytes.lastIndexOf('\n', -2) + 1;
    ContentHasher hasher;
    hasher.add(bytes.constData(), lastLine);
    const QByteArray mark = FileMark::behind(hasher.hash());
    isAsWritten = !mark.isEmpty() && bytes.mid(lastLine) == mark;
    hasher.add(bytes.constData() + lastLine, bytes.size() - lastLine);
    stamp = FileStamp(path, hasher.hash());
}
