#pragma once

#include <QString>

/// Where the user's files lie. With the environment variable COORDSYSTEM_MANAGER_HOME, which names a folder, all of
/// them lie there: for an installation on a stick, and for tests.
namespace UserFolders {

/// What the user sees as his documents.
QString documents();

/// What programs keep for themselves on this machine.
QString programData();

} // namespace UserFolders
