#pragma once

#include "platform/utility/ContentHash.h"

/// The last line of a file that this program understands whole: an XML processing instruction with the hash of all that
/// stands before it. Where it fits, every byte is as this program wrote it, so that the file can be taken by its lines
/// (FileScan) without being read as XML.
///
/// For everybody else it is an instruction that means nothing to him.
namespace FileMark {

constexpr const char* target = "catalogue-checksum";

/// The line behind a content of this hash. Empty where there can be none: the meaning of a nameless local encoding may
/// change between two starts, and with it which texts can be read.
QByteArray behind(const ContentHash& content);

} // namespace FileMark
