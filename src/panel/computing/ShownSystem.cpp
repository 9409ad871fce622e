#include "panel/computing/ShownSystem.h"

#include "catalogue/CoordParamKey.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IProjectionModule.h"

std::shared_ptr<const ShownSystem> ShownSystem::of(const IDictionary& record, const ShownSystem* earlier) {
    const auto system = std::make_shared<ShownSystem>();
    dictionary_assign(system->values.get(), &record);
    DefinitionState state = DefinitionState::of(record);
    system->definition = std::move(state.definition);
    system->reason = std::move(state.problem);
    if (system->definition.isEmpty())
        return system;
    if (earlier && earlier->definition == system->definition)
        system->projected = earlier->projected;
    else
        system->projected = projectionModule()->createSystem(system->definition);
    if (!system->projected)
        system->reason = PanelText::tr("No projection: these values make none.");
    return system;
}

QString ShownSystem::name() const {
    return QString::fromLocal8Bit(record().getValue(CoordParamKey::name));
}
