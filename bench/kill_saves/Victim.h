#pragma once

#include <QString>

/// What the kill driver starts and kills: another process of this program, which uses the tool's storage as the tool
/// does.
namespace Victim {

enum class Work {
    Save,   ///< saves to the data folder
    Rescue, ///< saves while the data folder can't be written
    Start,  ///< becomes the running instance
};

/// Works on what lies in `folder` until it is killed, and prints a line "done <number>" whenever something is finished:
/// the number of the save, or 0 for the start. With `lastCall` 0 or more it ends by itself before the disk call of that
/// number, counted from 0. Returns only when it can't work at all.
int run(Work work, const QString& folder, int lastCall);

/// The number of the last save that a load of the folder shows in the catalogue and among the ellipsoids; 0 for none.
struct Saved {
    int systems;
    int ellipsoids;
};
Saved load(const QString& folder);

QString dataFolder(const QString& folder);

} // namespace Victim
