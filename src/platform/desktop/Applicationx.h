#pragma once

#include <QApplication>

/// The process's application object. Before QApplication starts it switches on High-DPI scaling; then it sets the
/// application's name and icon, makes sure that the local 8-bit encoding carries any name, and installs the
/// translations for the user's languages: the tool's own and Qt's.
class Applicationx : public QApplication {
    Q_OBJECT

public:
    /// `applicationName` names the suite's application, `toolPath` this tool's place in it.
    Applicationx(int& argc, char** argv, const char* applicationName, const char* toolPath);
};
