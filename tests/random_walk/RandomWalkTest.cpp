#include "app/VornCoordSysMainWindow.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "panel/DlgCoordParam.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "tree/DlgCoordSysGroups.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <QtWidgets>

/// Thousands of commands in random order, always the same ones, now and then with the map of the distortion in sight:
/// after each of them the tree, the catalogue, the panel and the Save button agree and no record is left over.
class RandomWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void walk() {
        const QTemporaryDir home;
        qputenv("HOME", home.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        writeCatalogue(home.path() + "/Documents/ArvelaGnss/Data/CoordinateSystem_custom.vcs");

        VornCoordSysMainWindow window(nullptr);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        tree = window.findChild<DlgCoordSysGroups*>();
        panel = window.findChild<DlgCoordParam*>();
        for (QPushButton* button : window.findChildren<QPushButton*>()) {
            if (button->text() == "Add")
                addButton = button;
            if (button->text() == "Save")
                saveButton = button;
        }
        QVERIFY(addButton && saveButton);
        tree->setAnimated(false);
        connect(tree, &DlgCoordSysGroups::treeItemClicked, this, [this](const QString& group, const QString& name) {
            announcedGroup = group;
            announcedName = name;
        });
        announcedGroup = "A"; // by the start-up's selection
        announcedName = "A";
        compareTreeWithCatalogue();
        showMap(); // from here on it keeps a record of its own
        QApplication::processEvents();
        QVERIFY(isMapShown());

        const int otherDictionaries = dictionary_alive_count() - visibleItems(2).count();
        QMap<QString, int> effects;
        for (int i = 0; i < steps && !QTest::currentTestFailed(); ++i) {
            const int systemsBefore = visibleItems(2).count();
            step();
            if (isMapShown())
                disturbMap();
            compareTreeWithCatalogue();
            compareShownRecord();
            QCOMPARE(dictionary_alive_count() - visibleItems(2).count(), otherDictionaries);
            QCOMPARE(ModalDriver::pending(), 0);
            ++effects[visibleItems(2).count() < systemsBefore ? "fewer" : "no fewer"];
            ++effects[saveButton->isEnabled() ? "dirty" : "clean"];
            ++effects[panel->isEnabled() ? "shown" : "nothing to show"];
            if (isMapShown())
                ++effects[map->isEnabled() ? "map" : "no projection"];
            if (QTest::currentTestFailed())
                qWarning("step %d: %s", i, qPrintable(did));
        }
        // A walk that never got anywhere would agree as well.
        for (const char* effect : {"fewer", "dirty", "clean", "shown", "nothing to show"})
            QVERIFY2(effects[effect] > steps / 100, effect);
        for (const char* effect : {"map", "no projection"})
            QVERIFY2(effects[effect] > steps / 500, effect);
    }

private:
    using Items = QVector<QTreeWidgetItem*>;

    quint32 pick(int below) { return random.bounded(static_cast<quint32>(below)); }
    Items visibleItems(int level) const {
        Items items;
        for (QTreeWidgetItemIterator it(tree, QTreeWidgetItemIterator::NotHidden); *it; ++it) {
            const bool parentHidden = (*it)->parent() && (*it)->parent()->isHidden();
            if (!parentHidden && (*it)->data(0, Qt::UserRole).toInt() == level)
                items << *it;
        }
        return items;
    }

    QTreeWidgetItem* anyItem(int level) {
        const Items items = visibleItems(level);
        return items.isEmpty() ? nullptr : items[static_cast<int>(pick(items.count()))];
    }

    // Few names, so that they collide; some that a careless conversion would break.
    QString anyName() {
        static const QStringList names{"A", "B", "C", "100 %s", "é%1", "", "x,y", " ", "<&>\"'", "D", "E", "F"};
        return names[static_cast<int>(pick(names.count()))];
    }

    void trigger(const QString& entry) const {
        for (QAction* action : tree->findChildren<QAction*>()) {
            if (action->text() == entry)
                return action->trigger();
        }
        QFAIL("no such entry");
    }

    void type(const char* key, const QString& text) const {
        auto* field = panel->findChild<QLineEdit*>(key);
        if (field && field->isEnabled() && !field->isHidden()) {
            field->selectAll();
            QTest::keyClicks(field, text);
        }
    }

    void answerName() {
        const QString name = anyName();
        const bool cancelled = pick(8) == 0;
        did += QString(" \"%1\"%2").arg(name, cancelled ? " cancelled" : "");
        ModalDriver::onNextDialog([name, cancelled](QDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>();
            edit->setText(name);
            if (!cancelled)
                QTest::keyClick(edit, Qt::Key_Return);
            if (dialog->isVisible())
                dialog->reject();
        });
    }

    void step() {
        const int answer = static_cast<int>(pick(2));
        MessageBoxDouble::reset();
        MessageBoxDouble::answers = {answer};
        if (pick(mapEvery) == 0)
            showMap();
        const quint32 command = pick(20);
        const int level = command % 2 == 0 ? 1 : 2;
        QTreeWidgetItem* item = anyItem(level);
        const QString onto = item ? item->text(0) : QString();

        if (command < 6) {
            did = "click " + onto;
            if (item) {
                tree->setCurrentItem(item);
                Q_EMIT tree->itemClicked(item, 0);
            }
        } else if (command < 8) {
            did = "AddSysGroup";
            answerName();
            trigger("AddSysGroup");
        } else if (command < 11) {
            did = "Add button";
            answerName();
            addButton->click();
        } else if (command < 14 && item) {
            did = "rename " + onto;
            tree->setCurrentItem(item);
            answerName();
            trigger(level == 1 ? "EditSysGroup" : "EditSys");
        } else if (command < 17 && item) {
            did = "delete " + onto + (answer ? "" : " declined");
            tree->setCurrentItem(item);
            trigger(level == 1 ? "DelSysGroup" : "DelSys");
        } else if (command < 19) {
            did = "edit";
            if (pick(2) == 0) {
                panel->setCurrentIndex(0); // "Ellipsoid"
                type(CoordParamKey::ellipsoidA, "6378137");
                type(CoordParamKey::ellipsoidF, "298.25");
            }
            panel->setCurrentIndex(1); // "Projection"
            for (auto* method : panel->findChildren<QComboBox*>()) {
                if (method->accessibleName() == "Projection method" && method->isEnabled() && pick(2) == 0) {
                    method->setCurrentIndex(static_cast<int>(pick(method->count())));
                    Q_EMIT method->activated(method->currentIndex());
                }
            }
            type(CoordParamKey::factor, QString::number(0.9 + pick(1000) / 10000.0));
        } else {
            did = "Save";
            saveButton->click();
            QVERIFY(!saveButton->isEnabled());
        }
    }

    void showMap() {
        panel->setCurrentIndex(4); // "Check"
        for (auto* pages : panel->findChildren<QTabWidget*>())
            pages->setCurrentIndex(1); // "Distortion"
        for (QWidget* widget : panel->findChildren<QWidget*>()) {
            if (widget->inherits("QwtPlotCanvas"))
                map = widget;
        }
    }

    bool isMapShown() const { return map && map->isVisible(); }

    /// What a person's hand does to a map while it changes; most often it turns away after that.
    void disturbMap() {
        QMouseEvent move(QEvent::MouseMove, QPointF(pick(map->width()), pick(map->height())), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(map, &move);
        if (pick(2) == 0)
            panel->window()->resize(560 + static_cast<int>(pick(80)), 440 + static_cast<int>(pick(80)));
        if (pick(4) == 0)
            QApplication::processEvents();
        if (pick(3) > 0)
            panel->setCurrentIndex(static_cast<int>(pick(panel->count())));
    }

    void compareTreeWithCatalogue() const {
        QStringList seen;
        QStringList held;
        for (const QTreeWidgetItem* group : visibleItems(1)) {
            seen << group->text(0) + ":";
            for (int i = 0; i < group->childCount(); ++i)
                if (!group->child(i)->isHidden())
                    seen << group->child(i)->text(0);
        }
        for (const QString& group : QString::fromLocal8Bit(catalogue->getGroupNames()).split(',', Qt::SkipEmptyParts)) {
            held << group + ":";
            ICoordSysGroup* systems = catalogue->getGroup(group.toLocal8Bit().constData());
            held << QString::fromLocal8Bit(systems->getCoordSystemNames()).split(',', Qt::SkipEmptyParts);
        }
        QCOMPARE(seen, held);
    }

    void compareShownRecord() const {
        ICoordSysGroup* group = catalogue->getGroup(announcedGroup.toLocal8Bit().constData());
        const IDictionary* held = group ? group->getCoordSystem(announcedName.toLocal8Bit().constData()) : nullptr;
        QCOMPARE(panel->isEnabled(), held != nullptr || announcedName.isEmpty());
        if (!held)
            return;
        QCOMPARE(recordText(panel->getMetaData()), recordText(*held));
        QCOMPARE(QString::fromLocal8Bit(held->getValue(CoordParamKey::name)), announcedName);
    }

    // A catalogue of the walk's own in the user's data folder, whatever the tool ships.
    void writeCatalogue(const QString& path) {
        catalogue = get_instance_ICoordSystem("", 0);
        for (const char* name : {"B", "A"}) {
            catalogue->addGroup(name);
            const DictionaryGuard record;
            record->setText(CoordParamKey::name, "A");
            record->setText(CoordParamKey::ellipsoidName, "Clarke 1866");
            dic_set_value(record.get(), CoordParamKey::ellipsoidA, "%f", 6378206.4);
            dic_set_value(record.get(), CoordParamKey::ellipsoidF, "%f", 6378206.4 / (6378206.4 - 6356583.8));
            dic_set_value(record.get(), CoordParamKey::projectType, "%d", 1);
            dic_set_value(record.get(), CoordParamKey::factor, "%f", 0.9999);
            catalogue->getGroup(name)->addCoordSystem(record.get());
        }
        catalogue->saveCoordSystems("");
        catalogue->saveCoordSystems(path.toLocal8Bit().constData());
    }

    static constexpr int steps = 3500;
    static constexpr int mapEvery = 40;
    QRandomGenerator random{20240229};
    ICoordSystem* catalogue = nullptr;
    DlgCoordSysGroups* tree = nullptr;
    DlgCoordParam* panel = nullptr;
    QWidget* map = nullptr; ///< of the distortion
    QPushButton* addButton = nullptr;
    QPushButton* saveButton = nullptr;
    QString announcedGroup;
    QString announcedName;
    QString did; ///< the last step, for the message of a failure
};

ROOM_TEST(RandomWalkTest)
#include "RandomWalkTest.moc"
