#pragma once

#include <proj.h>

#include <memory>

struct ProjObjectDeleter {
    void operator()(PJ* object) const { proj_destroy(object); }
};

/// A PROJ object that belongs to its holder.
using ProjObject = std::unique_ptr<PJ, ProjObjectDeleter>;
