#include "panel/record/DefinitionState.h"

#include "import/CoordParamToProjDefine.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionAdvice.h"
#include "platform/projection/IProjectionModule.h"

DefinitionState DefinitionState::of(const IDictionary& record) {
    DefinitionState state;
    state.problem = ProjectionAdvice::problem(record);
    if (!state.problem.isEmpty())
        return state;
    IProjectionModule* const module = projectionModule();
    if (!module) {
        state.problem = PanelText::tr("Nothing can be computed: the projection module is not installed.");
        return state;
    }
    state.definition = coordParamToProjDefine(record);
    if (state.definition.isEmpty() || !module->createSystem(state.definition)) {
        state.definition.clear();
        state.problem = PanelText::tr("These parameters give no projection that can be computed.");
    }
    return state;
}
