#include "support/RoomTest.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return RoomTest::run(argc, argv);
}
