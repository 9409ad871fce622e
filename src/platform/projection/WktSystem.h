#pragma once

#include "platform/projection/Withheld.h"

#include <QByteArray>

/// What a WKT text, or a file with one, holds.
struct WktSystem {
    enum class Content {
        NotOpened,    ///< no such file, a folder, or not readable
        Unreadable,   ///< no coordinate system
        NotProjected, ///< a coordinate system of another kind
        Projected,
    };

    Content content = Content::Unreadable;
    QByteArray name; ///< of the projected system, in the encoding of the text that was read
    /// PROJ.4 definition of the projected system, for InitializeProj(). It has no "+proj" when PROJ.4 can't say what
    /// the WKT says, or the WKT leaves a doubt; the rest is then what could be read.
    QByteArray definition;
    Withheld withheld = {}; ///< why `definition` has no "+proj", or the system is none that is projected
};
