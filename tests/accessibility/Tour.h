#pragma once

#include "app/VornCoordSysMainWindow.h"
#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/Sdk.h"
#include "platform/desktop/VornMessageBox.h"
#include "support/Catalogue.h"
#include "support/ModalDriver.h"
#include "tree/DlgCoordSysGroups.h"
#include "tree/ImportProgress.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>

/// Leads through the whole tool: every tab, page and dialog is opened as a user opens it, filled with something to see,
/// and looked at.
class Tour {
public:
    /// `page` is what the user would call it; `root` is all of it that is to be looked at.
    using Look = std::function<void(const QString& page, QWidget& root)>;

    /// `catalogue` is that of the language in which the tool shows its texts; those below are the sources'.
    explicit Tour(const Look& look, const Catalogue& catalogue = {}) : look(look), catalogue(catalogue) {}

    void go() {
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        addOwnEntries();
        tree = window->findChild<DlgCoordSysGroups*>();
        tree->setAnimated(false);
        window->resize(1000, 700);
        window->show();
        QApplication::setActiveWindow(window.get());
        choose("Amersfoort / RD New");
        tabs();
        checks();
        panelDialogs();
        treeDialogs();
        messages();
        window.reset();
    }

private:
    // What the user does

    void settle(int milliseconds = 30) const {
        QTest::qWait(milliseconds);
        QApplication::setActiveWindow(window.get());
    }

    /// Of the window, or of a dialog in front of it.
    template <typename Widget> QList<Widget*> all(const QWidget* root) const {
        QList<Widget*> visible;
        for (Widget* widget : root->findChildren<Widget*>()) {
            if (widget->isVisible())
                visible << widget;
        }
        return visible;
    }

    QAbstractButton* button(const QString& text, const QWidget* root = nullptr) const {
        for (QAbstractButton* each : all<QAbstractButton>(root ? root : window.get())) {
            if (catalogue.means(each->text(), text))
                return each;
        }
        qFatal("No button %s", qPrintable(text));
    }

    template <typename Widget> Widget* named(const QString& name, const QWidget* root = nullptr) const {
        for (Widget* each : all<Widget>(root ? root : window.get())) {
            const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(each);
            if (catalogue.means(each->accessibleName(), name) || catalogue.means(seen->text(QAccessible::Name), name))
                return each;
        }
        qFatal("Nothing is named %s", qPrintable(name));
    }

    void turnTo(const QString& tab, const QWidget* root = nullptr) const {
        for (QTabBar* bar : all<QTabBar>(root ? root : window.get())) {
            for (int i = 0; i < bar->count(); ++i) {
                if (catalogue.means(bar->tabText(i), tab)) {
                    bar->setCurrentIndex(i);
                    return settle();
                }
            }
        }
        qFatal("No tab %s", qPrintable(tab));
    }

    void choose(const QString& system) const {
        const auto items = tree->findItems(system, Qt::MatchExactly | Qt::MatchRecursive);
        QVERIFY2(!items.isEmpty(), qPrintable(system));
        tree->setCurrentItem(items.first());
        Q_EMIT tree->itemClicked(items.first(), 0);
        settle();
    }

    void type(const QString& name, const QString& text, const QWidget* root = nullptr) const {
        auto* edit = named<QLineEdit>(name, root);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
        settle();
    }

    QString ofPoint1(const QString& column) const {
        return catalogue.translated("%1 of point %2").arg(catalogue.translated(column)).arg(1);
    }

    /// Whether the search for systems is still under way.
    bool isSearching(const QDialog& registry) const {
        const QString start = catalogue.translated("Systems found so far: %1").section("%1", 0, 0);
        const auto labels = registry.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel* label) { return label->text().startsWith(start); });
    }

    /// What opens is looked at and left again.
    void dialog(
        const QString& page, const std::function<void()>& open,
        const std::function<void(QDialog*)>& act = [](QDialog*) {}) {
        bool isSeen = false;
        ModalDriver::onNextDialog([&](QDialog* opened) {
            QTest::qWait(30);
            look(page, *opened);
            isSeen = true;
            act(opened);
            if (opened->isVisible())
                opened->reject();
            if (opened->isVisible())
                opened->done(QDialog::Rejected); // a question answers nothing else
        });
        open();
        QVERIFY2(isSeen, qPrintable(page));
        settle();
    }

    void dialog(
        const QString& page, const QString& opener, const std::function<void(QDialog*)>& act = [](QDialog*) {}) {
        dialog(
            page, [&] { button(opener)->click(); }, act);
    }

    void command(const QString& entry) const {
        for (QAction* action : tree->findChildren<QAction*>()) {
            if (catalogue.means(action->text(), entry))
                return action->trigger();
        }
        qFatal("No command %s", qPrintable(entry));
    }

    // Where it leads

    /// An ellipsoid and a geoid model of the user's own, which can be edited.
    static void addOwnEntries() {
        ICoordSystem* const entries = get_instance_ICoordSystem("", 0);
        const auto record = [](std::initializer_list<std::pair<const char*, const char*>> values) {
            DictionaryGuard made;
            for (const auto& [key, value] : values)
                made->setText(key, value);
            return made;
        };
        entries->addEllipsoid(record({{EllipsoidKey::name, own},
                                      {EllipsoidKey::a, "6377000"},
                                      {EllipsoidKey::f, "299.5"},
                                      {EllipsoidKey::flag, "0"}})
                                  .get());
        entries->addGeoid(
            record(
                {{GeoidKey::name, own}, {GeoidKey::file, "own.ggf"}, {GeoidKey::ellipsoid, own}, {GeoidKey::flag, "0"}})
                .get());
    }

    void tabs() {
        for (const char* tab : {"Ellipsoid", "Projection", "Datum shift", "Height", "Definition"}) {
            turnTo(tab);
            if (QByteArray(tab) == "Definition")
                QTRY_VERIFY_WITH_TIMEOUT(named<QWidget>("With identifier")->isEnabled(), 60000);
            look(tab, *window);
        }
        turnTo("Projection");
        type("Scale factor", "2x");
        look("Projection, refused", *window);
        type("Scale factor", "1.5");
        look("Projection, warned", *window);
        button("Back to the values before")->click();
        turnTo("Datum shift");
    }

    void checks() {
        turnTo("Check");
        look("Check, Point", *window);
        turnTo("Distortion");
        look("Check, Distortion", *window);
        turnTo("Points");
        look("Check, Points, none", *window);
        QApplication::clipboard()->setText("Pt;x;y;lat;lon;h\n"
                                           "Texel;117380.1200;575040.3400;53.160753042;4.824761912;42.8614\n"
                                           "Amersfoort;155000.0000;463000.0000;52.155172897;5.387203657;43.2551\n"
                                           "Zeeuws;16460.9100;377308.2300;51.368607152;3.397588595;47.4024\n"
                                           "Zeeuws;16470.9100;377480.2300;91.368607152;3.397588595;47.4024\n"
                                           "Zuid-Limburg;182260.4500;311480.6700;50.792584916;5.773795548;245.9478\n");
        dialog("Columns", "Paste", [](QDialog* columns) { columns->accept(); });
        settle(100);
        look("Check, Points", *window);
        button("Fit")->click();
        settle(100);
        look("Check, Points, Fit", *window);
        button("Fit")->click();
        turnTo("Compare");
        dialog("From catalogue", "From catalogue...", [](QDialog* catalogue) { catalogue->accept(); });
        settle(100);
        look("Check, Compare", *window);
    }

    void panelDialogs() {
        turnTo("Datum shift");
        dialog("Shift from points", "From points...");
        turnTo("Definition");
        dialog("From registry, by name", "From registry...", [this](QDialog* registry) {
            turnTo("From coordinates", registry);
            type(ofPoint1("Latitude"), "52.2", registry);
            type(ofPoint1("Longitude"), "5.4", registry);
            type(ofPoint1("First coordinate"), "155000", registry);
            type(ofPoint1("Second coordinate"), "463000", registry);
            // What is told while it searches depends on how fast it is.
            QTRY_VERIFY_WITH_TIMEOUT(!isSearching(*registry), 60000);
            look("From registry, from coordinates", *registry);
        });
        dialog("From text", "From text...");
        dialog("Save group", "Save group...");
    }

    /// A list of entries, and the dialogs in which one is added and edited.
    void entries(const QString& entry, const QString& page, const QString& kind) {
        dialog(
            page, [&] { command(entry); },
            [&](QDialog* list) {
                dialog("New " + kind, [&] { button("Add", list)->click(); });
                list->findChild<QComboBox*>()->setCurrentText(own);
                dialog("Edited " + kind, [&] { button("Edit", list)->click(); });
            });
    }

    void treeDialogs() {
        dialog("Name of a group", [this] { command("AddSysGroup"); });
        entries("Edit Ellipsoid", "Ellipsoids", "ellipsoid");
        entries("AddGeoid", "Geoids", "geoid");
        ImportProgress progress(window.get(), 10);
        for (int i = 0; i < 3; ++i)
            progress.showMessage([] {});
        progress.beginFile("somewhere/system.prj");
        QTest::qWait(30);
        auto* shown = window->findChild<QProgressDialog*>();
        QVERIFY(shown && shown->isVisible());
        look("Import progress", *shown);
    }

    void messages() {
        const auto first = tree->findItems("Amersfoort / RD New", Qt::MatchExactly | Qt::MatchRecursive).first();
        tree->setCurrentItem(first);
        dialog("Question", [this] { command("DelSys"); });
        dialog("Notice", [this] {
            VornMessageBox::information_ok(window.get(), catalogue.translated("information"),
                                           catalogue.translated("please input valid content!"));
        });
    }

    static constexpr const char* own = "Own 1"; // which is no text of the tool

    Look look;
    Catalogue catalogue;
    std::unique_ptr<VornCoordSysMainWindow> window;
    DlgCoordSysGroups* tree = nullptr;
};
