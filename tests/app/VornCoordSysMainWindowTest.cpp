#include "app/VornCoordSysMainWindow.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ISystemConfig.h"
#include "catalogue/Sdk.h"
#include "panel/DlgCoordParam.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "tree/DlgCoordSysGroups.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtWidgets>

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
        home = std::make_unique<QTemporaryDir>();
        qputenv("HOME", home->path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home->path().toLocal8Bit());
        MessageBoxDouble::reset();
        catalogue = std::make_unique<RecordingCatalogue>();
        config = std::make_unique<ConfigDouble>();
        config->parameters->setText("name", "Title");
    }

    void cleanup() {
        window.reset();
        config.reset();
        catalogue.reset();
        QCOMPARE(dictionary_alive_count(), aliveAtStart);
    }

    void startUp() {
        startWindow();
        const QStringList calls = catalogue->takeCalls();
        QCOMPARE(calls.mid(0, 2), (QStringList{"get_instance_ICoordSystem(,0)",
                                               "load(" + home->path() + "/Documents/ArvelaGnss/Data/)"}));
        QCOMPARE(calls.filter("getGroupNames").count(), 1);
        QCOMPARE(calls.filter("load(").count(), 1);
        QVERIFY(calls.filter("setCoordSystem").isEmpty() && calls.filter("save").isEmpty());
        QCOMPARE(window->minimumSize(), QSize(800, 600));
        QCOMPARE(shown(CoordParamKey::orgLon), QString("9.000000"));
        QVERIFY(button("Add")->isEnabled() && !button("Save")->isEnabled() && button("Exit")->isEnabled());

        auto* splitter = window->findChild<QSplitter*>();
        QCOMPARE(splitter->orientation(), Qt::Horizontal);
        QVERIFY(splitter->autoFillBackground());
        QCOMPARE(splitter->widget(0), tree());
        QVERIFY(splitter->widget(1)->isAncestorOf(panel()));
    }

    void titleComesFromTheConfiguration_data() {
        const Rows<QString> row({"name"});
        row("as configured", "Coordinate Systems – é %1");
        row("empty", "");
        row("none", {});
    }

    void titleComesFromTheConfiguration() {
        QFETCH(QString, name);
        if (name.isNull())
            config->parameters->remove("name");
        else
            config->parameters->setText("name", name.toUtf8().constData());
        startWindow();
        QCOMPARE(window->windowTitle(), name.isNull() ? QString("") : name);
    }

    void editIsWrittenBackAndSaved() {
        startWindow();
        click("A", "same");
        catalogue->takeCalls();
        panelEdit("0.9999");
        QVERIFY(catalogue->takeCalls().contains("A.setCoordSystem(same)"));
        QCOMPARE(held("A", "same", CoordParamKey::factor), QString("0.9999"));
        QCOMPARE(held("A", "same", "of_the_panel"), QString("kept"));
        QCOMPARE(held("A", "a1", CoordParamKey::factor), QString("0.999600"));
        QVERIFY(button("Save")->isEnabled());

        catalogue->takeCalls();
        QTest::mouseClick(button("Save"), Qt::LeftButton);
        const QString folder = home->path() + "/Documents/ArvelaGnss/Data";
        QCOMPARE(catalogue->takeCalls(),
                 (QStringList{"saveCoordSystems()", "saveCoordSystems(" + folder + "/CoordinateSystem_custom.vcs)"}));
        QVERIFY(QDir(folder).exists());
        QVERIFY(!button("Save")->isEnabled());
    }

    void editWithoutASystemOnlyEnablesSave() {
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        window->show();
        catalogue->takeCalls();
        Q_EMIT panel()->dataChanged();
        QVERIFY(button("Save")->isEnabled());
        QVERIFY(panel()->isEnabled());
        QVERIFY(catalogue->takeCalls().filter("setCoordSystem").isEmpty());
    }

    void selectionShowsTheRecord() {
        startWindow();
        click("B", "b1");
        QCOMPARE(shown(CoordParamKey::orgLon), QString("21.000000"));
        QVERIFY(!button("Save")->isEnabled());

        // A system that the catalogue lost without the tree's knowing: the panel keeps what it showed, and takes no
        // edits.
        catalogue->group("A")->systems.remove("a1");
        click("A", "a1");
        QCOMPARE(shown(CoordParamKey::orgLon), QString("21.000000"));
        QVERIFY(!panel()->isEnabled());
        panelEdit("0.5");
        QCOMPARE(held("B", "b1", CoordParamKey::factor), QString("0.999600"));
        click("B", "b1");
        QVERIFY(panel()->isEnabled());
    }

    void renamedGroupNeitherLosesNorMixesUpARecord() {
        startWindow();
        click("A", "same");
        // What the tree announces when B becomes B2 while the current system is A's.
        catalogue->renameGroup("B", "B2");
        Q_EMIT tree()->treeItemClicked("B2", "same");
        Q_EMIT tree()->dataChanged();
        QVERIFY(button("Save")->isEnabled());
        panelEdit("0.5");
        QCOMPARE(held("A", "same", CoordParamKey::factor), QString("0.999600"));

        // A system of that name then arrives in B2, as an import brings it: its record must stay its own.
        catalogue->addTestSystem("B2", "same", {CoordParamKey::factor, "0.9999"});
        Q_EMIT tree()->dataChanged();
        QCOMPARE(held("B2", "same", CoordParamKey::factor), QString("0.9999"));
        QCOMPARE(shown(CoordParamKey::factor), QString("0.9999"));
        QVERIFY(panel()->isEnabled());
    }

    void systemThatComesBackIsShownNotOverwritten() {
        startWindow();
        click("B", "b1");
        catalogue->group("B")->systems.remove("b1");
        Q_EMIT tree()->dataChanged(); // deleted by the tree
        QVERIFY(!panel()->isEnabled());
        catalogue->addTestSystem("B", "b1", {CoordParamKey::factor, "0.9999"});
        Q_EMIT tree()->dataChanged(); // imported again
        QCOMPARE(held("B", "b1", CoordParamKey::factor), QString("0.9999"));
        QCOMPARE(shown(CoordParamKey::factor), QString("0.9999"));
    }

    void closing_data() {
        const Rows<bool, QVector<int>, QStringList, bool, bool> row(
            {"dirty", "answers", "messages", "saved", "closed"});
        const QString changed = "?Warning|Data is changed!";
        const QString leave = "?information|Do you want to exit program?";
        row("clean, exit", false, {1}, {leave}, false, true);
        row("clean, stay", false, {0}, {leave}, false, false);
        row("dirty, discard", true, {0}, {changed}, false, true);
        row("dirty, save, exit", true, {1, 7}, {changed, leave}, true, true);
        row("dirty, save, stay", true, {1, 0}, {changed, leave}, true, false);
    }

    void closing() {
        QFETCH(bool, dirty);
        QFETCH(QVector<int>, answers);
        QFETCH(QStringList, messages);
        QFETCH(bool, saved);
        QFETCH(bool, closed);
        startWindow();
        if (dirty)
            panelEdit("0.5");
        catalogue->takeCalls();
        MessageBoxDouble::answers = answers;
        QTest::mouseClick(button("Exit"), Qt::LeftButton);

        QCOMPARE(MessageBoxDouble::texts(), messages);
        for (const auto& message : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(message.parent, static_cast<QWidget*>(window.get()));
        QCOMPARE(window->isVisible(), !closed);
        QCOMPARE(catalogue->takeCalls().filter("saveCoordSystems").count(), saved ? 2 : 0);
        QCOMPARE(button("Save")->isEnabled(), dirty && !saved);
    }

private:
    void startWindow() {
        const QStringList values{
            "ellipsoid_name", "GRS 1980",     "ellipsoid_a", "6378137.000000", "ellipsoid_f", "298.257222",   "org_lon",
            "9.000000",       "project_type", "1",           "factor",         "0.999600",    "of_the_panel", "kept"};
        catalogue->addTestGroup("A");
        catalogue->addTestSystem("A", "a1", values);
        catalogue->addTestSystem("A", "same", QStringList(values).replaceInStrings("9.000000", "15.000000"));
        catalogue->addTestGroup("B");
        catalogue->addTestSystem("B", "b1", QStringList(values).replaceInStrings("9.000000", "21.000000"));
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void click(const QString& group, const QString& name) {
        for (QTreeWidgetItemIterator it(tree()); *it; ++it) {
            if ((*it)->text(0) != name || !(*it)->parent() || (*it)->parent()->text(0) != group)
                continue;
            (*it)->parent()->setExpanded(true);
            tree()->setCurrentItem(*it);
            Q_EMIT tree()->itemClicked(*it, 0);
            return;
        }
        QFAIL("no such item");
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

    DlgCoordParam* panel() const { return window->findChild<DlgCoordParam*>(); }
    DlgCoordSysGroups* tree() const { return window->findChild<DlgCoordSysGroups*>(); }
    QPushButton* button(const QString& text) const {
        for (QPushButton* each : window->findChildren<QPushButton*>())
            if (each->text() == text)
                return each;
        return nullptr;
    }

    QString shown(const char* key) const { return panel()->getMetaData().getValue(key); }
    QString held(const QString& group, const QString& name, const char* key) const {
        return catalogue->group(group)->systems.find(name)->getValue(key);
    }

    int aliveAtStart = 0;
    std::unique_ptr<QTemporaryDir> home;
    std::unique_ptr<VornCoordSysMainWindow> window;
};

ROOM_TEST(VornCoordSysMainWindowTest)
#include "VornCoordSysMainWindowTest.moc"
