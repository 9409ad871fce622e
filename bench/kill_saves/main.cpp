// Kills the storage while it saves, rescues and starts, and checks after every kill that nothing is lost.
//   kill_saves [KILLS]      1,000 by default

#include "KillDriver.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("victim"))
        return Victim::run(Victim::Work(arguments.value(2).toInt()), arguments.value(3), arguments.value(4).toInt());

    const int kills = arguments.size() > 1 ? arguments[1].toInt() : 1000;
    KillDriver driver;
    int costly = 0;
    for (int i = 0; i < kills; ++i)
        costly += driver.kill(i) ? 0 : 1;
    for (const QString& complaint : driver.complaints())
        std::printf("%s\n", qPrintable(complaint));
    std::printf("%d kills, %d saves and starts done, %d unfinished files seen and removed, %d kills cost something\n",
                kills, driver.savesDone(), driver.leftoversSeen(), costly);
    return kills > 0 && driver.savesDone() > 0 && costly == 0 ? 0 : 1;
}
