#pragma once

#include <QString>
#include <qt_windows.h>

/// A file as another program holds it open on Windows, from its construction to release().
class HeldFile {
public:
    enum Sharing { WithNobody = 0, ForReading = FILE_SHARE_READ };

    HeldFile(const QString& path, Sharing sharing)
        : handle(CreateFileW(path.toStdWString().c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~HeldFile() { release(); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    bool isHeld() const { return handle != INVALID_HANDLE_VALUE; }
    void release() {
        if (isHeld())
            CloseHandle(handle);
        handle = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE handle;
};
