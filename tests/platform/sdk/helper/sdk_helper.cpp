#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/Sdk.h"
#include "platform/sdk/Catalogue.h"

#include <QGuiApplication>
#include <QTextCodec>
#include <QWindow>

#include <cstdio>

static void say(const char* text) {
    std::puts(text);
    std::fflush(stdout);
}

/// Runs as the tool does, with a minimised window, and says when it is brought back. It ends after a minute at most.
static int runInstance(QGuiApplication& application, const char* path) {
    if (instance_is_run(path, true)) {
        say("refused");
        return 0;
    }
    QWindow window;
    window.showMinimized();
    QObject::connect(&window, &QWindow::windowStateChanged, [](Qt::WindowState state) {
        if (state != Qt::WindowMinimized)
            say("front");
    });
    say("running");
    application.startTimer(60000);
    return application.exec();
}

/// Saves a growing catalogue until it is killed.
static int saveForever(const char* folder) {
    Catalogue catalogue{QString()};
    catalogue.load(folder);
    catalogue.addGroup("group");
    const QByteArray path = QByteArray(folder) + "CoordinateSystem_custom.vcs";
    for (int i = 0;; ++i) {
        DictionaryGuard record;
        dic_set_value(record.get(), "name", "%d", i);
        dic_set_value(record.get(), "note", "%s", QByteArray(2000, 'x').constData());
        catalogue.getGroup("group")->addCoordSystem(record.get());
        catalogue.saveCoordSystems("");
        catalogue.saveCoordSystems(path.constData());
        if (i == 0)
            say("saving");
    }
}

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (argc == 3 && qstrcmp(argv[1], "save") == 0)
        return saveForever(argv[2]);
    return runInstance(application, argv[0]);
}
