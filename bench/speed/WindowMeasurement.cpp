// What a person waits for in the tool's window: its classes, its data and the real projection module, in a home folder
// of its own. Prints milliseconds.
//   bench_speed_window clicks           a click on a system while each tab is shown, every tab open; two medians for
//                                       each tab: until the system is painted, and the longest pause behind that
//   bench_speed_window tab TITLE        the first click on a tab
//   bench_speed_window registry         the registry's list until it is shown, and the slowest letter typed into its
//                                       search
//   bench_speed_window first FILE       the first import of a process
//   bench_speed_window import FILES...  all but the first, which warms the libraries up

#include "WindowDriver.h"
#include "platform/desktop/Applicationx.h"
#include "support/OwnHome.h"

#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {

double median(QVector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

void clicks() {
    WindowDriver tool;
    for (int tab = 0; tab < tool.tabCount(); ++tab)
        tool.showTab(tab);
    for (int tab = 0; tab < tool.tabCount(); ++tab) {
        tool.showTab(tab);
        QVector<double> shown, settled;
        for (int i = 0; i < 15; ++i) {
            shown.append(tool.selectSystem());
            settled.append(tool.settle());
        }
        std::printf("%.3f %.3f ", median(shown), median(settled));
    }
    std::printf("\n");
}

void registry() {
    WindowDriver tool;
    tool.showTab("Definition");
    const WindowDriver::Registry measured = tool.searchRegistry("utm zone 32 europe");
    std::printf("%.3f %.3f\n", measured.opened, *std::max_element(measured.keys.begin(), measured.keys.end()));
}

int print(double elapsed) {
    std::printf("%.3f\n", elapsed);
    return elapsed < 0.0 ? 1 : 0;
}

int import(QStringList files) {
    WindowDriver tool;
    if (files.isEmpty() || tool.import({files.takeFirst()}) < 0.0)
        return 1;
    return print(tool.import(files));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const OwnHome home;
    const Applicationx application(argc, argv, "speed", "speed");
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString what = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (what == "clicks")
        clicks();
    else if (what == "tab")
        return print(WindowDriver().showTab(arguments.value(0)));
    else if (what == "registry")
        registry();
    else if (what == "first")
        return print(WindowDriver().import(arguments));
    else if (what == "import")
        return import(arguments);
    else
        return 2;
    return 0;
}
