#pragma once

#include <QString>

/// The folder of the running executable, links resolved, "/" as separator and no trailing "/". It needs no application
/// object.
QString applicationFolder();
