#pragma once

#include <QString>

/// The generations of a file that are older than its previous one ("*.bak"): files in the folder "generations" beside
/// it, named after the file and the time when each was saved.
///
/// The last ten stay, then the last of each day for thirty days with a save; all of them up to 100 MB, but the latest
/// in any case.
class Generations {
public:
    explicit Generations(const QString& file);

    /// Moves a generation of the file here. False when that failed and it stays where it is.
    bool take(const QString& generation) const;

    /// Removes what is too much.
    void thin() const;

private:
    QString folder;
    QString name;
};
