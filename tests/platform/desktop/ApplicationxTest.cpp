#include "platform/desktop/Applicationx.h"

#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QDialogButtonBox>
#include <QFont>
#include <QIcon>
#include <QProcess>
#include <QProxyStyle>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

/// What the application object of this test program's own start has set up.
class ApplicationxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void preparesTheProcess() {
        QCOMPARE(QCoreApplication::applicationName(), QString("test"));
        QCOMPARE(QGuiApplication::desktopFileName(), QString("test"));
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
        for (const int size : {16, 32, 48, 128})
            QVERIFY(QApplication::windowIcon().availableSizes().contains(QSize(size, size)));
        QCOMPARE(std::strtod("0.5", nullptr), 0.5);
        QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("none"));
    }

    /// Whatever the desktop's style says: to look for the icons costs every start.
    void showsDialogButtonsWithoutIcons() {
        class StyleWithIcons : public QProxyStyle {
            int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const override {
                return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1
                                                                   : QProxyStyle::styleHint(hint, option, widget, data);
            }
        };
        auto* style = qobject_cast<QProxyStyle*>(QApplication::style());
        QVERIFY(style);
        style->setBaseStyle(new StyleWithIcons);
        const QDialogButtonBox box(QDialogButtonBox::Ok);
        style->setBaseStyle(nullptr);
        QVERIFY(box.button(QDialogButtonBox::Ok)->icon().isNull());
    }

    /// The same on a desktop with a decimal comma.
    void decimalComma() {
        const QTemporaryDir folder;
        if (QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", folder.filePath("de_DE.UTF-8")}) != 0)
            QSKIP("no locale with a decimal comma can be made");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "de_DE.UTF-8");
        environment.insert("LOCPATH", folder.path());
        QProcess test;
        test.setProcessEnvironment(environment);
        test.start(QCoreApplication::applicationFilePath(), {"ApplicationxTest", "preparesTheProcess"});
        QVERIFY(test.waitForFinished());
        QVERIFY2(test.exitCode() == 0, test.readAllStandardOutput());
    }

    void usesTheLanguage() {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), qEnvironmentVariable("WANTED", "Cancel"));
    }

    /// Qt's own texts follow the tool's, whose catalogues are fewer.
    void language_data() { textRows("languages.txt"); }
    void language() {
        if (QSysInfo::kernelType() == "winnt")
            QSKIP("a user's languages are in no variable here");
        const auto row = textRow<4>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("LC_ALL");
        environment.remove("LC_MESSAGES");
        environment.insert("LANG", row[1]);
        environment.insert("LANGUAGE", row[2]);
        environment.insert("WANTED", row[3]);
        QProcess test;
        test.setProcessEnvironment(environment);
        test.start(QCoreApplication::applicationFilePath(), {"ApplicationxTest", "usesTheLanguage"});
        QVERIFY(test.waitForFinished());
        QVERIFY2(test.exitCode() == 0, test.readAllStandardOutput());
    }
};

ROOM_TEST(ApplicationxTest)
#include "ApplicationxTest.moc"
