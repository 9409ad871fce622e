#include "panel/record/SystemDescription.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/record/DatumFields.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"

namespace Key = CoordParamKey;

namespace {

using Lines = QVector<SystemDescription::Line>;

void addText(Lines& lines, const QString& name, const QString& text) {
    if (!text.trimmed().isEmpty())
        lines.append({name, text});
}

void addField(Lines& lines, const ParamField& field, const IDictionary& record) {
    const AngleNotation notation = AngleText::notation();
    const QString value = field.shownText(record, notation);
    QString unit = field.unitText(notation);
    if (field.isAngle() && notation == AngleNotation::DegreesMinutesSeconds)
        unit.clear(); // its signs stand in the value
    else if (field.quantity == Quantity::Length || field.quantity == Quantity::ScaleDifference)
        unit.prepend(' ');
    if (!value.isEmpty())
        lines.append({field.labelText(), value + unit});
}

void addShift(Lines& lines, const IDictionary& record) {
    constexpr double none = 0.0, sevenParameters = 2.0;
    const QString name = PanelText::tr("Shift to WGS 84");
    const double kind = dictionary_number(record, Key::shiftType, none);
    if (kind == none) {
        lines.append({name, PanelText::tr("None")});
    } else if (kind == sevenParameters) {
        lines.append({name, PanelText::tr("Position-vector convention (EPSG 9606, PROJ towgs84)")});
        for (const ParamField& field : DatumFields::shift())
            addField(lines, field, record);
    } else {
        lines.append({name, PanelText::tr("of an unknown kind")});
    }
}

} // namespace

QVector<SystemDescription::Line> SystemDescription::of(const IDictionary& record) {
    Lines lines;
    const auto text = [&](const char* key) { return QString::fromLocal8Bit(record.getValue(key)); };
    addText(lines, PanelText::tr("Where from"), text(Key::source));
    addText(lines, PanelText::tr("Remark"), text(Key::remark));
    if (const ProjectionFields* const method = ProjectionFields::ofRecord(record)) {
        lines.append({PanelText::tr("Projection"), method->nameText()});
        for (const ParamField& field : method->fields)
            addField(lines, field, record);
    }
    addText(lines, PanelText::tr("Ellipsoid"), text(Key::ellipsoidName));
    addField(lines, DatumFields::semiMajorAxis(), record);
    addField(lines, DatumFields::inverseFlattening(), record);
    addText(lines, PanelText::tr("Datum"), text(Key::datumName));
    addShift(lines, record);
    addText(lines, PanelText::tr("Geoid model"), text(Key::geoidName));
    addText(lines, PanelText::tr("PROJ definition"), QString::fromUtf8(DefinitionState::of(record).definition));
    return lines;
}
