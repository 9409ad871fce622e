#include "catalogue/Sdk.h"

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

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return runInstance(application, argv[0]);
}
