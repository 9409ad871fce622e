#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Ends the program, which libFuzzer reports with the input, unless `holds`.
void require(bool holds, const char* what);

/// A file in the temporary folder of this process; the same one for the same name.
QString scratchFile(const char* name);

/// Replaces the scratch file's content.
void writeScratch(const QString& path, const uint8_t* data, size_t size);

QByteArray readScratch(const QString& path);
