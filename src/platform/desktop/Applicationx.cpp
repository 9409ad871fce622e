#include "platform/desktop/Applicationx.h"

#include "catalogue/Path.h"

#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QTextCodec>
#include <QTranslator>

#include <clocale>

// A static library's resources are linked only when they are asked for, which works from the global namespace only.
static void initResources() {
    Q_INIT_RESOURCE(desktop);
}

namespace {

// Nothing of the tool is drawn with OpenGL, but under X11 Qt loads its driver for every program's first window: with
// Mesa's, an empty window's start takes six times the instructions that it takes without, and 11 MiB more.
void startWithoutOpenGl() {
    constexpr const char* setting = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(setting))
        qputenv(setting, "none");
}

/// The desktop's style, with words alone on the buttons of dialogs. To look for their icons in the desktop's themes was
/// a sixth of the start, as the dialog for names is made with the window.
class PlainButtonStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// All this must be set before QApplication is constructed, so it runs while its first argument is evaluated.
int& prepared(int& argc) {
    startWithoutOpenGl();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return argc;
}

// A desktop whose locale is "C" has a local encoding of ASCII, and Windows one of a few languages: each loses every
// other character of a name.
void useEncodingThatCarriesAnyName() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

/// Loads <name>_<language>.qm of the folder for the texts of the application; false when there is no such file.
bool installTranslation(QTranslator* translator, const QLocale& locale, const char* name, const QString& folder) {
    return translator->load(locale, QLatin1String(name), QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(translator);
}

/// The tool's texts in the first of the user's languages that they are translated to, or in English; then Qt's own
/// texts in the same language.
void installTranslations(QObject* parent) {
    char folder[1000];
    process_resolve_path(folder, sizeof folder, "$(APP_DIR)/../etc/Vornhalde/data/translations");
    auto* texts = new QTranslator(parent);
    for (const QLocale& locale : {QLocale::system(), QLocale(QLocale::English)}) {
        if (installTranslation(texts, locale, "coordsystem_manager", QString::fromLocal8Bit(folder)))
            break;
    }
    installTranslation(new QTranslator(parent), QLocale(texts->language()), "qtbase",
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath));
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
    setStyle(new PlainButtonStyle);
    initResources();
    QIcon icon;
    for (const char* size : {"16", "32", "48", "128"})
        icon.addFile(QStringLiteral(":/desktop/coordsystem_manager_%1.png").arg(QLatin1String(size)));
    setWindowIcon(icon);

    installTranslations(this);
}
