#pragma once

#include "platform/desktop/Applicationx.h"

#include <QTest>

/// The main function of a test program with widgets: the tool's own application object, so that any locale carries any
/// name.
#define ROOM_TEST_MAIN(TestClass)                                                                                      \
    int main(int argc, char** argv) {                                                                                  \
        const Applicationx application(argc, argv, "test", "test");                                                    \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
