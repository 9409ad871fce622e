#pragma once

#include "catalogue/CoordParamKey.h"
#include "panel/record/ParamField.h"

#include <optional>
#include <vector>

class IDictionary;

/// One kind of projection: the fields it has, in the order in which a geodesist reads them, each with the record key it
/// reads and writes. Editing, validation and computing all go by this table; keys that it does not name play no part in
/// the kind.
struct ProjectionFields {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    ProjectionKind kind;
    const char* name; ///< to be translated in the panel's context
    std::vector<ParamField> fields;

    QString nameText() const { return tr(name); }

    /// The field that reads and writes `key`, or null when the kind has none.
    const ParamField* field(const char* key) const;

    /// All kinds, by code.
    static const std::vector<ProjectionFields>& all();

    /// The kind, or null for a code that is none.
    static const ProjectionFields* find(int code);

    /// The kind that the record's "project_type" names, or null.
    static const ProjectionFields* ofRecord(const IDictionary& record);
};
