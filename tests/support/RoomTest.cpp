#include "support/RoomTest.h"

#include <QTest>

#include <map>
#include <string>

// By name, so that the order does not depend on the linker.
static std::map<std::string, RoomTest::Create>& classes() {
    static std::map<std::string, RoomTest::Create> all;
    return all;
}

RoomTest::RoomTest(const char* name, Create create) {
    classes().emplace(name, create);
}

int RoomTest::run(int argc, char** argv) {
    const std::string only = argc > 1 && classes().count(argv[1]) > 0 ? argv[1] : "";
    if (!only.empty()) {
        // QTest gets the arguments behind the class's name.
        argv[1] = argv[0];
        --argc;
        ++argv;
    }
    int failed = 0;
    for (const auto& [name, create] : classes()) {
        if (only.empty() || only == name)
            failed += QTest::qExec(create().get(), argc, argv) != 0 ? 1 : 0;
    }
    return failed;
}
