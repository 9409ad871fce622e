// Does a day's work in the real window, on the real catalogue and with the real projection module, and prints what
// each kind of work leaves in memory after another such day has warmed everything up.
//   bench_day_of_use [DIVISOR]      a DIVISOR-th of the day

#include "Day.h"
#include "PrivateMemory.h"
#include "platform/desktop/Applicationx.h"
#include "support/OwnHome.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

namespace {

struct Work {
    const char* name;
    int count;
    void (Day::*once)();
};

constexpr double mega = 1e6;
constexpr double limit = 5.0; ///< per cent

void repeat(Day& day, const Work& work, int count) {
    for (int i = 0; i < count; ++i)
        (day.*work.once)();
}

/// Does all of `work` and prints what it left; the growth of what the process holds, in bytes.
double measure(Day& day, const Work& work) {
    const double allocated = PrivateMemory::allocated(), held = PrivateMemory::held();
    QElapsedTimer timer;
    timer.start();
    repeat(day, work, work.count);
    const double grown = PrivateMemory::held() - held;
    std::printf("%6d %-12s %7.2f ms each, %8.3f MB more held, %8.3f MB more allocated: %6.0f bytes each\n", work.count,
                work.name, double(timer.elapsed()) / work.count, grown / mega,
                (PrivateMemory::allocated() - allocated) / mega, (PrivateMemory::allocated() - allocated) / work.count);
    std::fflush(stdout);
    return grown;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const OwnHome home;
    const Applicationx application(argc, argv, "day", "day");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        if (!text.startsWith("This plugin does not support"))
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });

    const int divisor = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    const Work fileDialogs{"file dialogs", 500 / divisor, &Day::chooseFile};
    const Work works[] = {{"selections", 10000 / divisor, &Day::select},
                          {"edits", 2000 / divisor, &Day::edit},
                          {"imports", 500 / divisor, &Day::import},
                          {"saves", 200 / divisor, &Day::save}};
    Day day(home.path());
    // A whole day: the caches of PROJ, GDAL and Qt's file dialog fill up for hundreds of imports, and then stay.
    for (const Work& work : works)
        repeat(day, work, work.count);
    repeat(day, fileDialogs, fileDialogs.count);

    const double before = PrivateMemory::held();
    double grown = 0.0;
    for (const Work& work : works)
        grown += measure(day, work);
    // Qt's dialog keeps a little each time, in every program; the imports opened as many.
    const double ofDialogs = measure(day, fileDialogs);
    const double perCent = (grown - ofDialogs) / before * 100.0;
    std::printf("%.1f MB after the warm-up; %.1f MB more in the day, %.1f MB of it Qt's file dialogs'\n"
                "without them %.1f %% (limit %.0f %%)\n",
                before / mega, grown / mega, ofDialogs / mega, perCent, limit);
    std::printf("%d changes of the catalogue, %d saves\n", day.changes(), day.saves());
    return 0;
}
