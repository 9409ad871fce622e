#include "support/Support.h"

#include "platform/projection/IProjectionModule.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>

#include <cstdio>
#include <cstdlib>

extern "C" IProjectionModule* vorn_projection_module();
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

/// In place of the loader.
IProjectionModule* projectionModule() {
    return vorn_projection_module();
}

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    // As the application object sets it.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return 0;
}

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Broken: %s\n", what);
        std::abort();
    }
}

QString scratchFile(const char* name) {
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

void writeScratch(const QString& path, const uint8_t* data, size_t size) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
}

QByteArray readScratch(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}
