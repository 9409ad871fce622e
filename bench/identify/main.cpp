#include "IdentifySweep.h"
#include "platform/projection/IProjectionModule.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

/// Ends with 1 when a system of the registry is not identified, or a wrong one is taken for it.
int main(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption every("every", "Take only each <n>-th system.", "n", "1");
    const QCommandLineOption changed("changed", "Try <n> systems with a wrong figure.", "n", "4000");
    parser.addHelpOption();
    parser.addOptions({every, changed});
    parser.process(application);
    IProjectionModule* const module = projectionModule();
    if (!module)
        return 1;
    IdentifySweep sweep(*module, std::max(1, parser.value(every).toInt()));
    const bool isUnchangedFound = sweep.findUnchanged();
    const bool isNoneTakenForAnother = sweep.findChanged(parser.value(changed).toInt());
    return sweep.exportWithIdentifiers() && isUnchangedFound && isNoneTakenForAnother ? 0 : 1;
}
