#pragma once

#include <QString>

/// The file of a geoid model in the folder where the tool keeps them.
class GeoidFile {
public:
    /// What is wrong with the file of that bare name, translated, as far as it can be known without reading its format:
    /// no name, not there, there under a name in other upper and lower case, a folder, empty. Empty when nothing is.
    static QString problem(const QString& fileName);
};
