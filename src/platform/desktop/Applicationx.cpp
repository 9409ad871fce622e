#include "platform/desktop/Applicationx.h"

#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

#include <clocale>

// A static library's resources are linked only when they are asked for, which works from the global namespace only.
static void initResources() {
    Q_INIT_RESOURCE(desktop);
}

namespace {

// The attributes must be set before QApplication is constructed, so this runs while its first argument is evaluated.
int& prepared(int& argc) {
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return argc;
}

// A desktop whose locale is "C" has a local encoding of ASCII, which loses every other character of a name.
void useEncodingThatCarriesAnyName() {
#if !defined(Q_OS_WIN)
    const QTextCodec* codec = QTextCodec::codecForLocale();
    if (!codec || codec->mibEnum() != QTextCodec::codecForName("UTF-8")->mibEnum())
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

} // namespace

Applicationx::Applicationx(int& argc, char** argv, const char* applicationName, const char* toolPath)
    : QApplication(prepared(argc), argv) {
    useEncodingThatCarriesAnyName();
    // Figures are read and written with a decimal point, whatever C function a library uses for it.
    std::setlocale(LC_NUMERIC, "C");

    setApplicationName(QString::fromLatin1(applicationName));
    // No display name: Qt would append it to every window title.
    setDesktopFileName(QFileInfo(QString::fromLatin1(toolPath)).fileName());
    initResources();
    QIcon icon;
    for (const char* size : {"16", "32", "48", "128"})
        icon.addFile(QStringLiteral(":/desktop/coordsystem_manager_%1.png").arg(QLatin1String(size)));
    setWindowIcon(icon);

    auto* translator = new QTranslator(this);
    if (translator->load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        installTranslator(translator);
}
