#include "LanguageRules.h"
#include "accessibility/Tour.h"
#include "support/Catalogue.h"
#include "support/OwnHome.h"
#include "support/RoomTest.h"

/// Every tab, page and dialog in the language that the tool was started in, in the window's own size and in its
/// smallest: no text is cut off, none stayed in English.
class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        language = qEnvironmentVariable("LANGUAGE");
        if (language == "zh_CN" && QFontDatabase().families(QFontDatabase::SimplifiedChinese).isEmpty())
            QFAIL("No font has Chinese characters: install fonts-wqy-microhei, or another.");
        QApplication::setStyle("fusion");
    }

    void textsOfQt() {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") == "Cancel", language == "en");
    }

    void pages() {
        const Catalogue catalogue(QString(CATALOGUES "/coordsystem_manager_%1.ts").arg(language));
        const LanguageRules::Untranslated untranslated(language == "en" ? Catalogue() : catalogue);
        QStringList broken;
        int pages = 0;
        const OwnHome home;
        const auto look = [&](const QString& page, QWidget& root, const QString& size) {
            keep(root, page + size);
            const QStringList found = LanguageRules::cutOff(root) + LanguageRules::oversized(root) +
                                      untranslated.in(LanguageRules::textsOf(root));
            for (const QString& each : found)
                broken << page + size + ": " + each;
        };
        Tour(
            [&](const QString& page, QWidget& root) {
                ++pages;
                if (page == "Check, Points") {
                    for (const QString& each : untranslated.in(report(root, catalogue, home.path() + "/report.html")))
                        broken << "Report: " + each;
                }
                if (qobject_cast<VornCoordSysMainWindow*>(&root)) {
                    const QSize before = root.size();
                    root.resize(root.minimumSize());
                    QTest::qWait(30);
                    look(page, root, ", smallest");
                    root.resize(root.sizeHint().expandedTo(root.minimumSize()));
                    QTest::qWait(30);
                    look(page, root, "");
                    root.resize(before);
                    QTest::qWait(30);
                } else {
                    look(page, root, "");
                }
            },
            catalogue)
            .go();
        QCOMPARE(pages, 30);
        broken.removeDuplicates();
        for (const QString& each : qAsConst(broken))
            qWarning("%s", qPrintable(each)); // QtTest would cut them all off together
        QVERIFY2(broken.isEmpty(), qPrintable(QString("%1 faults").arg(broken.size())));
    }

private:
    void keep(QWidget& root, const QString& page) const {
        const QString folder = qEnvironmentVariable("LANGUAGES_PICTURES");
        if (!folder.isEmpty() && QDir().mkpath(folder))
            root.grab().save(QString("%1/%2, %3.png").arg(folder, page, language));
    }

    /// The lines of the report on the points; as PDF it is kept beside the pictures.
    QStringList report(QWidget& window, const Catalogue& catalogue, const QString& path) const {
        save(window, catalogue, path);
        const QString folder = qEnvironmentVariable("LANGUAGES_PICTURES");
        if (!folder.isEmpty())
            save(window, catalogue, QDir(folder).absoluteFilePath(QString("report, %1.pdf").arg(language)));
        QFile file(path);
        QTextDocument text;
        if (file.open(QIODevice::ReadOnly))
            text.setHtml(QString::fromUtf8(file.readAll()));
        const QStringList lines = text.toPlainText().split('\n', Qt::SkipEmptyParts);
        return lines.size() > 20 ? lines : QStringList("Report..."); // which is translated, so that it is told of
    }

    static void save(QWidget& window, const Catalogue& catalogue, const QString& path) {
        QFile::remove(path); // of a run before: the dialog would ask
        for (QAbstractButton* button : PageRules::visible<QAbstractButton>(window)) {
            if (!catalogue.means(button->text(), "Report..."))
                continue;
            ModalDriver::onNextDialog([&](QDialog* dialog) {
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
            });
            button->click();
            QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled() && QFileInfo(path).size() > 0, 10000);
            QTest::qWait(100);
        }
    }

    QString language;
};

ROOM_TEST(LanguageTest)
#include "LanguageTest.moc"
