#include "app/VornCoordSysMainWindow.h"
#include "catalogue/Sdk.h"
#include "platform/desktop/Applicationx.h"

int main(int argc, char** argv) {
    const Applicationx application(argc, argv, "Meridane", "/Tool/CoordSystemManager/coordsystem_manager");
    if (instance_is_run(argv[0], true) != 0)
        return 0;
    VornCoordSysMainWindow window(nullptr);
    window.show();
    return QApplication::exec();
}
