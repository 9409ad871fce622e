#include "app/VornCoordSysMainWindow.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/ISystemConfig.h"
#include "catalogue/Sdk.h"
#include "panel/DlgCoordParam.h"
#include "support/LayoutText.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/OwnHome.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "tree/DlgCoordSysGroups.h"

#include <QDialog>
#include <QDir>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExp>
#include <QSignalSpy>
#include <QSplitter>
#include <QTest>
#include <QTreeWidgetItem>

namespace {

std::unique_ptr<RecordingCatalogue> catalogue;

class ConfigDouble : public ISystemConfig {
public:
    void reload() override {}
    IDictionary* getParameters() override { return parameters.get(); }

    DictionaryGuard parameters;
};

std::unique_ptr<ConfigDouble> config;

} // namespace

ICoordSystem* get_instance_ICoordSystem(const char* name, int kind) {
    catalogue->calls << QString("get_instance_ICoordSystem(%1,%2)").arg(name).arg(kind);
    return catalogue.get();
}

ISystemConfig* get_system_config_parameter() {
    return config.get();
}

double Radian2Angle(double* value) {
    return *value;
}

class VornCoordSysMainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        aliveAtStart = dictionary_alive_count();
        home.reset(); // before the next, whose variable it would take away
        home = std::make_unique<OwnHome>();
        MessageBoxDouble::reset();
        catalogue = std::make_unique<RecordingCatalogue>();
        config = std::make_unique<ConfigDouble>();
        const auto valuesAt = [](const char* longitude) {
            return QString("ellipsoid_name|GRS 1980|ellipsoid_a|6378137.000000|ellipsoid_f|298.257222|org_lon|%1|"
                           "project_type|1|factor|0.999600|of_the_panel|kept")
                .arg(longitude)
                .split('|');
        };
        catalogue->addTestGroup("A");
        catalogue->addTestSystem("A", "a1", valuesAt("9.000000"));
        catalogue->addTestSystem("A", "same", valuesAt("15.000000"));
        catalogue->addTestGroup("B");
        catalogue->addTestSystem("B", "b1", valuesAt("21.000000"));
    }

    void cleanup() {
        window.reset();
        config.reset();
        catalogue.reset();
        QCOMPARE(dictionary_alive_count(), aliveAtStart);
    }

    void startUp() {
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        // The first system is shown before the window is.
        QCOMPARE(callsOfTheWindow(),
                 (QStringList{"get_instance_ICoordSystem(,0)", "load(" + home->path() + "/Documents/ArvelaGnss/Data/)",
                              "getGroupNames()", "getGroup(A)", "A.getCoordSystemNames()", "getGroup(B)",
                              "B.getCoordSystemNames()", "getGroup(A)", "A.getCoordSystem(a1)"}));
        QCOMPARE(shown(CoordParamKey::orgLon), QString("9.000000"));
        QCOMPARE(window->minimumSize(), QSize(800, 600));
        QVERIFY(button("Add")->isEnabled() && !button("Save")->isEnabled() && button("Exit")->isEnabled());

        QCOMPARE(layoutText(window->layout()), QString("row(QSplitter)"));
        QVERIFY(!window->layout()->contentsMargins().isNull());
        auto* splitter = window->findChild<QSplitter*>();
        QCOMPARE(splitter->orientation(), Qt::Horizontal);
        QVERIFY(splitter->autoFillBackground() && splitter->count() == 2 && splitter->widget(0) == tree());
        for (const int pane : {0, 1})
            QCOMPARE(splitter->widget(pane)->sizePolicy().horizontalStretch(), pane + 1);
        QLayout* right = splitter->widget(1)->layout();
        QCOMPARE(layoutText(right).replace("VornCoordSysMainWindow:", "W:"),
                 QString("row(column(1*DlgCoordParam, row(~, W:Add, W:Save, W:Exit)))"));
        QVERIFY(right->contentsMargins().isNull() && right->itemAt(0)->layout()->contentsMargins().isNull());
    }

    void addButtonAdds() {
        startWindow();
        ModalDriver::onNextDialog([](QDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QString("DlgCoordSysGroups:AddCoordSys"));
            dialog->reject();
        });
        button("Add")->click();
        QCOMPARE(ModalDriver::pending(), 0);
    }

    void titleComesFromTheConfiguration() {
        for (const char* name : {"Coordinate Systems – é %1", "", static_cast<const char*>(nullptr)}) {
            config->parameters->remove("name");
            if (name)
                config->parameters->setText("name", name);
            startWindow();
            QCOMPARE(window->windowTitle(), QString("VornCoordSysMainWindow:") + name);
        }
    }

    void editIsWrittenBackAndSaved() {
        startWindow();
        click("A", "same");
        catalogue->takeCalls();
        const QSignalSpy edits(panel(), SIGNAL(dataChanged()));
        panelEdit("0.9999");
        QVERIFY(edits.count() > 0);
        QStringList calls;
        for (int i = 0; i < edits.count(); ++i)
            calls << QStringList{"getGroup(A)", "A.hasCoordSystem(same)", "A.setCoordSystem(same)"};
        QCOMPARE(catalogue->takeCalls(), calls);
        QCOMPARE(held("A", "same", CoordParamKey::factor), QString("0.9999"));
        QCOMPARE(held("A", "same", "of_the_panel"), QString("kept"));
        QCOMPARE(held("A", "a1", CoordParamKey::factor), QString("0.999600"));
        QVERIFY(button("Save")->isEnabled());

        QTest::mouseClick(button("Save"), Qt::LeftButton);
        const QString folder = home->path() + "/Documents/ArvelaGnss/Data";
        QCOMPARE(catalogue->takeCalls(),
                 (QStringList{"saveCoordSystems()", "saveCoordSystems(" + folder + "/CoordinateSystem_custom.vcs)"}));
        QVERIFY(QDir(folder).exists());
        QVERIFY(!button("Save")->isEnabled());
    }

    void editWithoutASystemOnlyEnablesSave() {
        catalogue->groups.clear();
        startWindow();
        catalogue->takeCalls();
        Q_EMIT panel()->dataChanged();
        QVERIFY(button("Save")->isEnabled());
        QVERIFY(panel()->isEnabled());
        QCOMPARE(catalogue->takeCalls(), QStringList("getGroup()"));
    }

    /// The panel keeps what it showed and takes no edits; the names are the missing system's, so that nothing is
    /// written into the one that was shown before.
    void missing() {
        for (const bool isGroupThere : {true, false}) {
            startWindow();
            click("B", "b1");
            QCOMPARE(shown(CoordParamKey::orgLon), QString("21.000000"));
            QVERIFY(!button("Save")->isEnabled());
            catalogue->takeCalls();

            Q_EMIT tree()->treeItemClicked(isGroupThere ? "A" : "Z", "lost");
            QCOMPARE(catalogue->takeCalls().join(' '),
                     QString(isGroupThere ? "getGroup(A) A.getCoordSystem(lost)" : "getGroup(Z)"));
            QCOMPARE(shown(CoordParamKey::orgLon), QString("21.000000"));
            QVERIFY(!panel()->isEnabled() && !button("Save")->isEnabled());
            panelEdit("0.5");
            Q_EMIT panel()->dataChanged();
            QCOMPARE(catalogue->takeCalls().join(' '),
                     QString(isGroupThere ? "getGroup(A) A.hasCoordSystem(lost)" : "getGroup(Z)"));
            QVERIFY(!panel()->isEnabled() && button("Save")->isEnabled());
            QCOMPARE(held("B", "b1", CoordParamKey::factor), QString("0.999600"));

            click("B", "b1");
            QVERIFY(panel()->isEnabled());
        }
    }

    /// A system of the shown name that is gone comes (back): its record must stay its own, not the one that the panel
    /// still holds. So it is after an import, or when a renamed group is announced with another group's system.
    void systemThatComesBackIsShownNotOverwritten() {
        startWindow();
        click("B", "b1");
        catalogue->group("B")->systems.remove("b1");
        catalogue->takeCalls();
        Q_EMIT tree()->dataChanged();
        QCOMPARE(catalogue->takeCalls(), (QStringList{"getGroup(B)", "B.hasCoordSystem(b1)"}));
        QVERIFY(!panel()->isEnabled());
        catalogue->addTestSystem("B", "b1", {CoordParamKey::factor, "0.9999"});
        Q_EMIT tree()->dataChanged();
        QCOMPARE(callsOfTheWindow(),
                 (QStringList{"getGroup(B)", "B.hasCoordSystem(b1)", "getGroup(B)", "B.getCoordSystem(b1)"}));
        QVERIFY(panel()->isEnabled());
        QCOMPARE(held("B", "b1", CoordParamKey::factor), QString("0.9999"));
        QCOMPARE(shown(CoordParamKey::factor), QString("0.9999"));
    }

    void closing_data() {
        const Rows<bool, QVector<int>, QStringList, bool> row({"dirty", "answers", "messages", "closed"});
        const QString changed = "?QObject:Warning|VornCoordSysMainWindow:Data is changed!";
        const QString leave = "?QObject:information|QObject:Do you want to exit program?";
        row("clean, exit", false, {1}, {leave}, true);
        row("clean, stay", false, {0}, {leave}, false);
        row("dirty, discard", true, {0}, {changed}, true);
        row("dirty, save, exit", true, {1, 7}, {changed, leave}, true);
        row("dirty, save, stay", true, {1, 0}, {changed, leave}, false);
    }

    void closing() {
        QFETCH(bool, dirty);
        QFETCH(QVector<int>, answers);
        QFETCH(QStringList, messages);
        QFETCH(bool, closed);
        startWindow();
        if (dirty)
            panelEdit("0.5");
        catalogue->takeCalls();
        MessageBoxDouble::answers = answers;
        QTest::mouseClick(button("Exit"), Qt::LeftButton);

        const bool saved = messages.count() == 2; // nothing asks twice but a save
        QCOMPARE(MessageBoxDouble::texts(), messages);
        for (const auto& message : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(message.parent, static_cast<QWidget*>(window.get()));
        QCOMPARE(window->isVisible(), !closed);
        QCOMPARE(catalogue->takeCalls().filter("saveCoordSystems").count(), saved ? 2 : 0);
        QCOMPARE(button("Save")->isEnabled(), dirty && !saved);
    }

private:
    void startWindow() {
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void click(const QString& group, const QString& name) {
        for (QTreeWidgetItem* item : tree()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive)) {
            if (item->parent()->text(0) != group)
                continue;
            tree()->setCurrentItem(item);
            Q_EMIT tree()->itemClicked(item, 0);
        }
    }

    // Types into the panel's own field for the scale factor; a panel that takes no edits takes none here either.
    void panelEdit(const char* factor) {
        panel()->setCurrentIndex(1); // "Projection"
        auto* field = panel()->findChild<QLineEdit*>(CoordParamKey::factor);
        QVERIFY(field);
        if (!field->isEnabled())
            return;
        field->selectAll();
        QTest::keyClicks(field, factor);
    }

    /// The calls since the last takeCalls(), without those by which the panel fills its own lists.
    static QStringList callsOfTheWindow() {
        const QStringList calls = catalogue->takeCalls();
        return calls.filter(QRegExp("^(?!get(Ellipsoid|Geoid))"));
    }

    DlgCoordParam* panel() const { return window->findChild<DlgCoordParam*>(); }
    DlgCoordSysGroups* tree() const { return window->findChild<DlgCoordSysGroups*>(); }
    QPushButton* button(const QString& text) const {
        for (QPushButton* each : window->findChildren<QPushButton*>())
            if (each->text().section(':', -1) == text)
                return each;
        return nullptr;
    }

    QString shown(const char* key) const { return panel()->getMetaData().getValue(key); }
    QString held(const QString& group, const QString& name, const char* key) const {
        return catalogue->group(group)->systems.find(name)->getValue(key);
    }

    const MarkingTranslator translator;
    int aliveAtStart = 0;
    std::unique_ptr<OwnHome> home;
    std::unique_ptr<VornCoordSysMainWindow> window;
};

ROOM_TEST(VornCoordSysMainWindowTest)
#include "VornCoordSysMainWindowTest.moc"
