#pragma once

#include "platform/sdk/FileBytes.h"
#include "platform/sdk/FileContent.h"

#include <pugixml.hpp>

/// A file's XML. Of a damaged file it is what stands before the damage, up to the last complete record.
class FileDocument {
public:
    /// Attributes keep their line breaks and tabs; what a person wrote beside the elements is kept for him.
    static constexpr unsigned int parseOptions = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol |
                                                 pugi::parse_comments | pugi::parse_pi | pugi::parse_doctype |
                                                 pugi::parse_ws_pcdata_single | pugi::parse_fragment;

    /// Reads the file `path`, whose bytes they are, and into `content` what every kind of file has.
    FileDocument(const QString& path, FileBytes&& file, const FileKind& kind, FileContent& content);

    static bool isElement(const pugi::xml_node& node, const char* name);

    pugi::xml_node root; ///< null when there is none of this kind

private:
    pugi::xml_parse_result parse();
    void parseBefore(ptrdiff_t damage, const FileKind& kind);
    bool keepSurroundings(FileContent& content) const;

    QByteArray bytes; // the document points into it
    pugi::xml_document document;
};
