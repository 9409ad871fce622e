#pragma once

#include <QByteArray>

namespace pugi {
class xml_attribute;
}

/// A text as it comes from an attribute.
class AttributeText {
public:
    /// Whether the attribute holds the text `name`: as it is, or percent-encoded in the attribute `name` + "_encoded".
    bool read(const pugi::xml_attribute& attribute, const char* name);

    /// Null when there was none, or none that the local encoding can express. It lives as long as this and the
    /// document.
    const char* get() const { return text; }

private:
    const char* text = nullptr;
    QByteArray converted;
};
