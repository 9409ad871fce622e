#include "platform/sdk/AttributeText.h"

#include "platform/sdk/FileFormat.h"
#include "platform/sdk/FileText.h"

#include <pugixml.hpp>

#include <cstring>

bool AttributeText::read(const pugi::xml_attribute& attribute, const char* name) {
    const size_t length = std::strlen(name);
    if (std::strncmp(attribute.name(), name, length) != 0)
        return false;
    const char* suffix = attribute.name() + length;
    if (!*suffix && FileText::isPlain(attribute.value())) {
        text = attribute.value();
        return true;
    }
    std::optional<QByteArray> read;
    if (!*suffix)
        read = FileText::fromUtf8(attribute.value());
    else if (std::strcmp(suffix, FileFormat::encodedSuffix) == 0)
        read = QByteArray::fromPercentEncoding(attribute.value());
    else
        return false;
    converted = read.value_or(QByteArray());
    text = read ? converted.constData() : nullptr;
    return true;
}
