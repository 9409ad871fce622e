#include "support/RoomTest.h"

#include <QDir>
#include <QTest>

#include <map>
#include <string>

// The tool's own application object where the room has widgets, so that any locale carries any name.
#ifdef ROOM_TEST_GUI
#include "platform/desktop/Applicationx.h"
#else
#include <QCoreApplication>
#endif

// By name, so that the order does not depend on the linker.
static std::map<std::string, RoomTest::Create>& classes() {
    static std::map<std::string, RoomTest::Create> all;
    return all;
}

static QString& dataFolder() {
    static QString folder;
    return folder;
}

RoomTest::RoomTest(const char* name, const char* folder, Create create) {
    classes().emplace(name, create);
    dataFolder() = folder;
}

QString RoomTest::dataPath(const QString& name) {
    return QDir(dataFolder()).filePath(name);
}

int main(int argc, char** argv) {
#ifdef ROOM_TEST_GUI
    const Applicationx application(argc, argv, "test", "test");
#else
    const QCoreApplication application(argc, argv);
#endif
    const std::string only = argc > 1 && classes().count(argv[1]) > 0 ? argv[1] : "";
    if (!only.empty()) {
        // QTest gets the arguments behind the class's name.
        argv[1] = argv[0];
        --argc;
        ++argv;
    }
    if (classes().empty())
        qFatal("There are no tests in this program.");
    int failed = 0;
    for (const auto& [name, create] : classes()) {
        if (only.empty() || only == name)
            failed += QTest::qExec(create().get(), argc, argv) != 0 ? 1 : 0;
    }
    return failed;
}
