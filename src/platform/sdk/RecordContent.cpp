#include "platform/sdk/RecordContent.h"

#include "platform/sdk/AttributeText.h"
#include "platform/sdk/FileFormat.h"

#include <pugixml.hpp>

#include <cstring>

/// False when the element is no value that this version understands.
bool RecordContent::readValue(const pugi::xml_node& element) {
    AttributeText key, text;
    const char* number = nullptr;
    UnknownXml unknownOfValue;
    // pugixml's own loops cost far less here than its ranges do.
    for (pugi::xml_attribute attribute = element.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        if (key.read(attribute, FileFormat::keyAttribute) || text.read(attribute, FileFormat::textAttribute))
            continue;
        if (std::strcmp(attribute.name(), FileFormat::numberAttribute) == 0)
            number = attribute.value();
        else
            unknownOfValue.keep(attribute);
    }
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling())
        unknownOfValue.keep(child);
    if (!key.get() || !text.get())
        return false;

    const int before = values->count();
    bool isNumber = true;
    if (number)
        values->setNumber(key.get(), text.get(), QByteArray(number).toDouble(&isNumber));
    else
        values->setText(key.get(), text.get());
    if (!unknownOfValue.isEmpty())
        unknownOfValues.insert(key.get(), unknownOfValue);
    return isNumber && values->count() > before;
}

bool RecordContent::read(const pugi::xml_node& element) {
    for (const pugi::xml_attribute& attribute : element.attributes())
        unknown.keep(attribute);
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element && std::strcmp(child.name(), FileFormat::valueElement) == 0) {
            if (!readValue(child))
                return false;
        } else {
            if (child.type() == pugi::node_pcdata && !UnknownXml::isBlank(child))
                return false;
            unknown.keep(child);
        }
    }
    return true;
}
