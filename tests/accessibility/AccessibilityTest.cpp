#include "ContrastRules.h"
#include "PageRules.h"
#include "Tour.h"
#include "panel/field/FieldEdit.h"
#include "support/OwnHome.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

namespace {

/// As desktops have it that are dark at night.
QPalette darkPalette() {
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Window, QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Button, QColor(53, 53, 53));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(240, 240, 240));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(240, 240, 240, 128));
    return palette;
}

} // namespace

/// Every tab, page and dialog: named for a screen reader, in reach of the keyboard in the order in which it is read,
/// and readable in a light palette and in a dark one.
class AccessibilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pages_data() {
        const Rows<bool> row({"isDark"});
        row("light", false);
        row("dark", true);
    }

    void pages() {
        QFETCH(bool, isDark);
        QApplication::setStyle("fusion");
        QApplication::setPalette(isDark ? darkPalette() : QApplication::style()->standardPalette());
        QStringList broken;
        int pages = 0;
        tour([&](const QString& page, QWidget& root) {
            ++pages;
            const QImage picture = root.grab().toImage();
            keep(picture, page + (isDark ? ", dark" : ""));
            QStringList found = ContrastRules::faint(root, picture) + ContrastRules::lost(root, picture);
            if (!isDark)
                found += PageRules::broken(root);
            for (const QString& each : qAsConst(found))
                broken << page + ": " + each;
        });
        broken.removeDuplicates();
        for (const QString& each : qAsConst(broken))
            qWarning("%s", qPrintable(each));
        QVERIFY(broken.isEmpty());
        QCOMPARE(pages, 30);
    }

    /// A desktop may turn dark while the tool runs.
    void fieldsFollowThePalette() {
        FieldEdit edit;
        edit.setShownOnly();
        edit.setMarked(true);
        QApplication::setPalette(darkPalette());
        QVERIFY(ContrastRules::contrast(edit.palette().color(QPalette::Base), edit.palette().color(QPalette::Text)) >
                4.5);
        edit.setMarked(false);
        QCOMPARE(edit.palette().color(QPalette::Base), QColor(53, 53, 53));
        QApplication::setPalette(QApplication::style()->standardPalette());
        QCOMPARE(edit.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Window));
    }

    /// No figure depends on the language.
    void figures() {
        QStringList texts[2];
        const QLocale before;
        for (const bool isGerman : {false, true}) {
            QLocale::setDefault(QLocale(isGerman ? QLocale::German : QLocale::C));
            tour([&](const QString& page, QWidget& root) {
                for (QWidget* widget : PageRules::visible<QWidget>(root)) {
                    const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(widget);
                    texts[isGerman] << page + ": " + seen->text(QAccessible::Name) + " = " +
                                           seen->text(QAccessible::Value) + ContrastRules::textOf(widget) + ' ' +
                                           seen->text(QAccessible::Description);
                }
            });
        }
        QLocale::setDefault(before);
        QVERIFY(texts[0].size() > 500);
        for (int i = 0; i < qMin(texts[0].size(), texts[1].size()); ++i)
            QCOMPARE(texts[1][i], texts[0][i]);
        QCOMPARE(texts[1].size(), texts[0].size());
    }

private:
    static void tour(const Tour::Look& look) {
        const OwnHome home;
        Tour(look).go();
    }

    static void keep(const QImage& picture, const QString& page) {
        const QString folder = qEnvironmentVariable("ACCESSIBILITY_PICTURES");
        if (!folder.isEmpty() && QDir().mkpath(folder))
            picture.save(QString("%1/%2.png").arg(folder, page));
    }
};

ROOM_TEST(AccessibilityTest)
#include "AccessibilityTest.moc"
