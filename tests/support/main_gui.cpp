#include "platform/desktop/Applicationx.h"
#include "support/RoomTest.h"

/// The tool's own application object, so that any locale carries any name.
int main(int argc, char** argv) {
    const Applicationx application(argc, argv, "test", "test");
    return RoomTest::run(argc, argv);
}
