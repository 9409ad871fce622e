#include "WindowDriver.h"

#include "app/VornCoordSysMainWindow.h"
#include "panel/DlgCoordParam.h"
#include "support/ModalDriver.h"
#include "tree/DlgCoordSysGroups.h"

#include <QtTest>
#include <QtWidgets>

namespace {

// Milliseconds.
constexpr int lookAtWindow = 1500;
constexpr int aimAtTab = 100; // nobody hits one faster whose mouse was elsewhere
constexpr int chooseFiles = 300;

template <typename Work> double duration(const Work& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

template <typename Work> double milliseconds(const Work& work) {
    return duration([&] {
        work();
        QApplication::processEvents();
    });
}

/// The visible button or the menu entry of that text.
template <typename Item> Item* find(const QObject* parent, const QString& text) {
    for (Item* item : parent->findChildren<Item*>()) {
        if (item->text() == text)
            return item;
    }
    qFatal("There is no %s", qPrintable(text));
}

} // namespace

WindowDriver::WindowDriver()
    : window(std::make_unique<VornCoordSysMainWindow>(nullptr))
    , tree(window->findChild<DlgCoordSysGroups*>())
    , panel(window->findChild<DlgCoordParam*>()) {
    window->show();
    QApplication::setActiveWindow(window.get());
    QTest::qWait(lookAtWindow);
}

WindowDriver::~WindowDriver() = default;

int WindowDriver::tabCount() const {
    return panel->count();
}

QString WindowDriver::tabTitle(int tab) const {
    return panel->tabText(tab);
}

double WindowDriver::showTab(int tab) {
    QTabBar* const bar = panel->tabBar();
    QEvent reached(QEvent::Enter);
    QApplication::sendEvent(bar, &reached);
    QTest::qWait(aimAtTab);
    return milliseconds([&] { QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center()); });
}

double WindowDriver::showTab(const QString& title) {
    for (int tab = 0; tab < tabCount(); ++tab) {
        if (tabTitle(tab) == title)
            return showTab(tab);
    }
    qFatal("There is no tab %s", qPrintable(title));
}

QTreeWidgetItem* WindowDriver::group(int index) const {
    const QTreeWidgetItem* const root = tree->topLevelItem(0);
    return root->child(index % root->childCount());
}

double WindowDriver::selectSystem() {
    const QTreeWidgetItem* const from = group(++selections);
    QTreeWidgetItem* const system = from->child(selections % from->childCount());
    tree->scrollToItem(system);
    QTest::qWait(1);
    const QPoint place = tree->visualItemRect(system).center();
    return duration([&] {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
        QApplication::sendPostedEvents(); // paints, but lets no timer run
    });
}

double WindowDriver::settle() {
    double longest = 0.0;
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 200;)
        longest = std::max(longest, milliseconds([] {}));
    return longest;
}

WindowDriver::Registry WindowDriver::searchRegistry(const QString& text) {
    Registry result{};
    QElapsedTimer sinceClick;
    ModalDriver::onNextDialog([&](QDialog* dialog) {
        QApplication::processEvents();
        result.opened = double(sinceClick.nsecsElapsed()) / 1e6;
        QWidget* const search = dialog->focusWidget();
        for (const QChar letter : text)
            result.keys.append(milliseconds([&] { QTest::keyClick(search, letter.toLatin1()); }));
        dialog->reject();
    });
    sinceClick.start();
    find<QPushButton>(panel, "From registry...")->click();
    return result;
}

double WindowDriver::import(const QStringList& files) {
    QTreeWidgetItem* const into = group(0);
    const int before = into->childCount();
    tree->setCurrentItem(into->child(0));
    Q_EMIT tree->itemClicked(into->child(0), 0);
    QElapsedTimer sinceChosen;
    ModalDriver::onNextDialog([&](QDialog* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText('"' + files.join("\" \"") + '"');
        QObject::connect(dialog, &QDialog::accepted, [&] { sinceChosen.start(); });
        QTest::qWait(chooseFiles);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    find<QAction>(tree, "ImportCoordSys")->trigger();
    QApplication::processEvents();
    const double elapsed = double(sinceChosen.nsecsElapsed()) / 1e6;
    return group(0)->childCount() == before + files.size() ? elapsed : -1.0;
}
