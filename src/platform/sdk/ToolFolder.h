#pragma once

#include <QString>

/// The folder for what the tool keeps for this user beside his data: the lock of its one instance, saves that could not
/// reach the data folder. It need not exist.
QString toolFolder();
