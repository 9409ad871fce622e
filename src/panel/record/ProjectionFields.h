#pragma once

#include "catalogue/CoordParamKey.h"
#include "panel/record/ParamField.h"

#include <vector>

class IDictionary;

/// One method of projection: the fields it has, in the order in which a geodesist reads them, each with the record key
/// it reads and writes. Editing and validation go by this table, which is made from that of MethodParameters.h; keys
/// that it does not name play no part in the method.
struct ProjectionFields {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    ProjectionMethod method;
    const char* name; ///< to be translated in the panel's context
    std::vector<ParamField> fields;

    QString nameText() const { return tr(name); }

    /// The field that reads and writes `key`, or null when the method has none.
    const ParamField* field(const char* key) const;

    /// All methods, by code.
    static const std::vector<ProjectionFields>& all();

    /// The method, or null for a code that is none.
    static const ProjectionFields* find(int code);

    /// The method that the record's "project_type" names, or null.
    static const ProjectionFields* ofRecord(const IDictionary& record);
};
