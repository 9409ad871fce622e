#pragma once

#include <QObject>
#include <QString>

#include <memory>

/// The test classes of one program. Each says ROOM_TEST(Class) in its own file; the program runs them one after another
/// with the command line's arguments, or only the class that the first argument names.
class RoomTest {
public:
    using Create = std::unique_ptr<QObject> (*)();

    /// `folder` is the room's, the same for every class.
    RoomTest(const char* name, const char* folder, Create create);

    /// The path of a file of the room's folder; an absolute path stays.
    static QString dataPath(const QString& name);
};

#define ROOM_TEST(TestClass)                                                                                           \
    static const RoomTest registered##TestClass(                                                                       \
        #TestClass, TEST_DATA_DIR, []() -> std::unique_ptr<QObject> { return std::make_unique<TestClass>(); });
