#pragma once

#include <QTemporaryDir>

/// A home folder for the tool, and for the programs that the test starts, as long as the object lives.
class OwnHome {
public:
    OwnHome();
    ~OwnHome();

    QString path() const { return folder.path(); }

private:
    QTemporaryDir folder;
};
