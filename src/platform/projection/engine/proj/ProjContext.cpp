#include "platform/projection/engine/proj/ProjContext.h"

ProjContext::ProjContext() : context(proj_context_create()) {
    beQuiet();
}

void ProjContext::beQuiet() const {
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
}

ProjContext::~ProjContext() {
    proj_context_destroy(context);
}
