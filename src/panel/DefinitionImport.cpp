#include "panel/DefinitionImport.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "import/ProjDefineToCoordParam.h"
#include "panel/DatumFields.h"
#include "panel/DlgCoordParam.h"
#include "panel/ProjectionFields.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/IWktReader.h"
#include "platform/projection/ProjectionLibrary.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

using namespace CoordParamKey;

bool isSame(double left, double right) {
    return std::abs(left - right) <= std::max(1e-9, 1e-12 * std::max(std::abs(left), std::abs(right)));
}

bool hasSameNumber(const IDictionary& left, const IDictionary& right, const char* key) {
    return isSame(dictionary_number(left, key, 0.0), dictionary_number(right, key, 0.0));
}

bool hasSameText(const IDictionary& left, const IDictionary& right, const char* key) {
    return QByteArray(left.getValue(key)) == QByteArray(right.getValue(key));
}

bool hasShift(const IDictionary& record) {
    return dictionary_number(record, shiftType, 0.0) == 2.0;
}

bool hasSameShift(const IDictionary& left, const IDictionary& right) {
    const auto& fields = DatumFields::shift();
    return std::all_of(fields.begin(), fields.end(), [&](const ParamField& field) {
        const double leftValue = hasShift(left) ? dictionary_number(left, field.key, 0.0) : 0.0;
        const double rightValue = hasShift(right) ? dictionary_number(right, field.key, 0.0) : 0.0;
        return isSame(leftValue, rightValue);
    });
}

} // namespace

bool DefinitionImport::read(const QByteArray& wkt, IDictionary* record) {
    IProjectionModule* const module = projectionModule();
    const WktSystem system = module ? module->wktReader().read(wkt) : WktSystem();
    if (system.content != WktSystem::Content::Projected)
        return false;
    projDefineToCoordParam(InitializeProj(system.definition), record);
    record->setText(name, QString::fromUtf8(system.name).replace(',', '-').toLocal8Bit());
    return true;
}

QStringList DefinitionImport::differences(const IDictionary& record, const IDictionary& imported) {
    QStringList lost;
    if (!hasSameText(record, imported, name))
        lost.append(DlgCoordParam::tr("the name"));
    if (!hasSameText(record, imported, ellipsoidName))
        lost.append(DlgCoordParam::tr("the ellipsoid's name"));
    for (const ParamField* field : {&DatumFields::semiMajorAxis(), &DatumFields::inverseFlattening()}) {
        if (!hasSameNumber(record, imported, field->key))
            lost.append(field->labelText());
    }
    const ProjectionFields* kind = ProjectionFields::ofRecord(record);
    if (!kind || !hasSameNumber(record, imported, projectType)) {
        lost.append(DlgCoordParam::tr("the kind of projection"));
    } else {
        for (const ParamField& field : kind->fields) {
            if (!hasSameNumber(record, imported, field.key))
                lost.append(field.labelText());
        }
    }
    if (!hasSameShift(record, imported))
        lost.append(DlgCoordParam::tr("the datum shift"));
    return lost;
}
