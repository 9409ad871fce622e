#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QMetaType>

// For the rows of tests.
Q_DECLARE_METATYPE(GeographicPoint)
Q_DECLARE_METATYPE(GridPoint)
