#pragma once

#include "Victim.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QTemporaryDir>

/// Starts the victim, kills it at a random moment or before a disk call, and looks at what it left: over and over on
/// the same folder, so that what one kill leaves meets the next.
class KillDriver {
public:
    KillDriver();

    /// False when the kill cost anything; complaints() says what.
    bool kill(int number);

    const QStringList& complaints() const { return lost; }
    int savesDone() const { return saves; }
    int leftoversSeen() const { return leftovers; }

private:
    /// The number of the last save that the victim reported; 0 when there was none.
    int runVictim(Victim::Work work, int lastCall);
    void checkStart();
    void checkFiles(Victim::Work work, int done);
    void check(bool holds, const QString& complaint);

    QTemporaryDir folder;
    QRandomGenerator random{5};
    Victim::Saved shown{0, 0}; ///< by the last round's load
    int saves = 0;
    int leftovers = 0;
    int round = 0;
    QStringList lost;
};
