#include "panel/record/PastedDefinition.h"

#include "catalogue/CoordParamKey.h"
#include "import/WktToCoordParam.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/WithheldText.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QDate>

namespace Key = CoordParamKey;

namespace {

/// "Central meridian: 9°", in the way in which the panel shows it; empty where the record has no such value.
QString lineOf(const ParamField& field, const IDictionary& record) {
    const AngleNotation notation = AngleText::notation();
    const QString text = field.shownText(record, notation);
    if (text.isEmpty())
        return QString();
    const bool isWhole = field.isAngle() && notation == AngleNotation::DegreesMinutesSeconds;
    const QString unit = isWhole ? QString() : field.unitText(notation);
    const bool isSign = field.isAngle() || field.quantity == Quantity::SmallRotation;
    return PanelText::named(field.labelText(), text + (isSign || unit.isEmpty() ? unit : ' ' + unit));
}

QString textOf(const IDictionary& record, const char* key) {
    return QString::fromLocal8Bit(record.getValue(key));
}

QString shiftLine(const IDictionary& record) {
    if (dictionary_number(record, Key::shiftType, 0.0) != 2.0)
        return PanelText::tr("Datum shift to WGS 84: none");
    QStringList values;
    for (const ParamField& field : DatumFields::shift())
        values << field.shownText(record, AngleNotation::DecimalDegrees) +
                      (field.quantity == Quantity::SmallRotation ? "" : " ") +
                      field.unitText(AngleNotation::DecimalDegrees);
    return PanelText::tr("Datum shift to WGS 84: %1").arg(values.join(", "));
}

} // namespace

PastedDefinition::PastedDefinition(const QString& text) {
    IProjectionModule* const module = projectionModule();
    if (!module) {
        problem = PanelText::tr("Nothing can be computed: the projection module is not installed.");
        return;
    }
    const ReadDefinition definition = module->readDefinition(text.toUtf8());
    const QString why = WithheldText::of(definition.system);
    held = definition.system.content == WktSystem::Content::Projected && why.isEmpty();
    if (held)
        take(text, definition);
    else
        refuse(text, definition, why);
}

void PastedDefinition::take(const QString& text, const ReadDefinition& definition) {
    WktToCoordParam::convert(definition.system, record.get());
    name = QString::fromUtf8(definition.system.name);
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const QString identifier = QString::fromUtf8(definition.identifier);
    const QString edition = QString::fromUtf8(projectionModule()->registry().edition());
    const auto set = [&](const char* key, const QString& value) {
        if (!value.isEmpty())
            record->setText(key, value.toLocal8Bit().constData());
    };
    set(Key::datumName, QString::fromUtf8(definition.datum));
    set(Key::source, identifier.isEmpty()             ? PanelText::tr("Pasted text, %1").arg(today)
                     : identifier.startsWith("EPSG:") ? QStringList{identifier, edition, today}.join(", ")
                                                      : QStringList{identifier, today}.join(", "));
    set(Key::pastedText, text);
    if (!definition.unit.isEmpty())
        notes << PanelText::tr("The text counts in %1, the record in metres.").arg(QString::fromUtf8(definition.unit));
    if (definition.hasOtherShift)
        notes << PanelText::tr("Its datum shift is by grids, or of another kind, and is left out.");
    if (definition.hasHeight)
        notes << PanelText::tr("Its heights are left out.");
    if (definition.isWithdrawn)
        notes << PanelText::tr("The registry has withdrawn it.");
}

void PastedDefinition::refuse(const QString& text, const ReadDefinition& definition, const QString& why) {
    problem = why;
    if (definition.position < 0)
        return;
    const QString before = QString::fromUtf8(text.toUtf8().left(definition.position));
    position = before.size();
    problem +=
        ' ' +
        PanelText::tr("(line %1, column %2)").arg(before.count('\n') + 1).arg(before.size() - before.lastIndexOf('\n'));
}

QStringList PastedDefinition::understood() const {
    if (!held)
        return {};
    QStringList lines;
    if (!name.isEmpty())
        lines << name;
    if (const ProjectionFields* const projection = ProjectionFields::ofRecord(*record)) {
        lines << projection->nameText();
        for (const ParamField& field : projection->fields)
            lines << lineOf(field, *record);
    }
    const auto shown = [this](const ParamField& field) { return field.shownText(*record, AngleText::notation()); };
    lines << PanelText::tr("Ellipsoid: %1, a %2 m, 1/f %3")
                 .arg(textOf(*record, Key::ellipsoidName), shown(DatumFields::semiMajorAxis()),
                      shown(DatumFields::inverseFlattening()));
    const QString datum = textOf(*record, Key::datumName);
    lines << PanelText::tr("Datum: %1").arg(datum.isEmpty() ? PanelText::tr("not named") : datum);
    lines << shiftLine(*record) << notes << textOf(*record, Key::source);
    lines.removeAll(QString());
    return lines;
}
