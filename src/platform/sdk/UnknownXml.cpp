#include "platform/sdk/UnknownXml.h"

#include "platform/sdk/FileText.h"

#include <pugixml.hpp>

#include <cstring>
#include <vector>

namespace {

struct ByteArrayWriter : pugi::xml_writer {
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), int(size)); }
    QByteArray text;
};

/// The blank texts between nodes, which the parser drops unless they are written as references.
struct BlankTexts : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
        if (UnknownXml::isBlank(node) && (node.previous_sibling() || node.next_sibling()))
            found.push_back(node);
        return true;
    }
    std::vector<pugi::xml_node> found;
};

} // namespace

bool UnknownXml::isBlank(const pugi::xml_node& node) {
    return node.type() == pugi::node_pcdata && node.value()[std::strspn(node.value(), " \t\r\n")] == '\0';
}

QByteArray UnknownXml::xmlOf(pugi::xml_node node) {
    BlankTexts blanks;
    node.traverse(blanks);
    for (const pugi::xml_node& blank : blanks.found)
        blank.parent().remove_child(blank);
    ByteArrayWriter writer;
    node.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
    writer.text.replace("\r", "&#13;"); // it was a reference: any other is a line feed by now
    // A text gets a line of its own when it is written, and must not get another one at every save.
    return node.type() == pugi::node_pcdata ? writer.text.trimmed() : writer.text;
}

void UnknownXml::keep(const pugi::xml_attribute& attribute) {
    attributes += QByteArray(" ") + attribute.name() + "=\"" + FileText::escaped(attribute.value()) + '"';
}

void UnknownXml::keep(const pugi::xml_node& child) {
    if (!isBlank(child))
        children += xmlOf(child);
}
