// Starts the tool as src/app/main.cpp does, and ends when its window is painted: what a start costs, and nothing after
// it.

#include "app/VornCoordSysMainWindow.h"
#include "catalogue/Sdk.h"
#include "platform/desktop/Applicationx.h"

#include <QWindow>

#include <cstdlib>

int main(int argc, char** argv) {
    const Applicationx application(argc, argv, "Meridane", "/Tool/CoordSystemManager/coordsystem_manager");
    if (instance_is_run(argv[0], true) != 0)
        return 1;
    VornCoordSysMainWindow window(nullptr);
    window.show();
    while (!window.windowHandle()->isExposed())
        QApplication::processEvents();
    QApplication::sendPostedEvents();
    window.repaint();
    std::_Exit(0); // what the end costs is no part of a start
}
