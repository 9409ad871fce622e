#pragma once

#include <proj.h>

/// The module's one PROJ context. It writes nothing to the terminal.
class ProjContext {
public:
    ProjContext();
    ~ProjContext();

    ProjContext(const ProjContext&) = delete;
    ProjContext& operator=(const ProjContext&) = delete;

    /// Nothing is written to the terminal from now on.
    void beQuiet() const;

    PJ_CONTEXT* get() const { return context; }

private:
    PJ_CONTEXT* context;
};
