#pragma once

#include "platform/projection/ReadDefinition.h"

class DefinitionLibrary;
class ProjContext;
class ProjItems;
class WktReader;
struct PastedText;

/// Reads what people paste for a coordinate system; see IProjectionModule::readDefinition().
class DefinitionReader {
public:
    /// All outlive the object.
    DefinitionReader(const ProjContext& context, DefinitionLibrary& library, WktReader& wktReader)
        : context(context), library(library), wktReader(wktReader) {}

    ReadDefinition read(const QByteArray& text);

private:
    ReadDefinition readIdentifier(const QByteArray& authority, const QByteArray& code);
    ReadDefinition readWkt(const PastedText& pasted);
    ReadDefinition readJson(const QByteArray& text);
    ReadDefinition readItems(const QByteArray& text);
    Withheld whyNot(const ProjItems& items);
    QByteArray complaintOf(const ProjItems& items);

    const ProjContext& context;
    DefinitionLibrary& library;
    WktReader& wktReader;
};
