#pragma once

#include "Sweep.h"

#include <QMap>

class IDictionary;

/// Pastes systems of a registry in each notation, as a user of "From text..." may, and compares with what the import of
/// the registry's WKT 2 gives. PROJ's own text of a system often states less (no shift, no axes, the meridian of Paris
/// to 3e-9 degrees, no turn of the Belgian grid): a record that computes what PROJ computes from the text is right,
/// too.
class PastedSweep {
public:
    PastedSweep(PJ_CONTEXT* context, const Sweep::Options& options) : context(context), options(options) {}

    /// Whether no notation gives another record, nor one of a system that the import withholds.
    bool run();

private:
    struct Count {
        int same = 0;     ///< the same record
        int asText = 0;   ///< another record, which computes what PROJ does from the text
        int withheld = 0; ///< by both
        int refused = 0;  ///< held when it is imported
        int other = 0;    ///< another record, or one of what is withheld
        int missing = 0;  ///< PROJ can't write the system in this notation
    };

    void compare(const char* notation, const RegistryEntry& entry, const QByteArray& text, const IDictionary& imported);
    bool isAsText(const RegistryEntry& entry, const QByteArray& text, const QByteArray& definition) const;

    PJ_CONTEXT* context;
    Sweep::Options options;
    QMap<QByteArray, Count> byNotation;
};
