#include "tree/DlgCoordSysGroups.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "tree/DlgInputName.h"

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidgetItemIterator>

namespace {

const char* const cancel = "<cancel>";

// The catalogue of most rows: two groups that share a system's name, and an empty one.
void fillCatalogue(RecordingCatalogue& catalogue) {
    catalogue.addTestGroup("A", {"a1", "same"});
    catalogue.addTestSystem("A", "a2",
                            {"ellipsoid_name", "Bessel 1841", "ellipsoid_a", "6377397.155000", "ellipsoid_f",
                             "299.152813", "factor", "1.000000"});
    catalogue.addTestGroup("B", {"b1", "same"});
    catalogue.addTestGroup("C");
}

QTreeWidgetItem* itemAtPath(const QTreeWidget& tree, const QString& path) {
    QTreeWidgetItem* item = tree.topLevelItem(0);
    if (path == "root")
        return item;
    for (const QString& part : path.split('/')) {
        QTreeWidgetItem* found = nullptr;
        for (int i = 0; i < item->childCount() && !found; ++i)
            if (item->child(i)->text(0) == part && !item->child(i)->isHidden())
                found = item->child(i);
        if (!found)
            return nullptr;
        item = found;
    }
    return item;
}

QString pathOf(const QTreeWidgetItem* item) {
    if (!item)
        return QString();
    return item->parent() && item->parent()->parent() ? item->parent()->text(0) + "/" + item->text(0) : item->text(0);
}

// The whole tree as one text: groups with their systems in brackets, hidden items with a "-" in front.
QString dump(const QTreeWidget& tree) {
    QStringList groups;
    const QTreeWidgetItem* root = tree.topLevelItem(0);
    for (int g = 0; g < root->childCount(); ++g) {
        const QTreeWidgetItem* group = root->child(g);
        QStringList systems;
        for (int s = 0; s < group->childCount(); ++s)
            systems << (group->child(s)->isHidden() ? "-" : "") + group->child(s)->text(0);
        groups << (group->isHidden() ? "-" : "") + group->text(0) + "[" + systems.join(" ") + "]";
    }
    return groups.join(" ");
}

void answerNameDialog(const QString& typed) {
    ModalDriver::onNextDialog([typed](QDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>();
        QVERIFY(edit);
        if (typed == cancel) {
            QTest::keyClick(edit, Qt::Key_Escape);
            return;
        }
        edit->selectAll();
        edit->insert(typed); // key clicks would carry ASCII only
        QTest::keyClick(edit, Qt::Key_Return);
        if (dialog->isVisible()) // refused: leave as a user would
            dialog->reject();
    });
}

} // namespace

class DlgCoordSysGroupsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void treeMirrorsTheCatalogue_data();
    void treeMirrorsTheCatalogue();
    void firstSystemIsAnnounced_data();
    void firstSystemIsAnnounced();
    void clickAnnouncesSystemsOnly();
    void menuFollowsTheItem_data();
    void menuFollowsTheItem();
    void command_data();
    void command();
    void newSystemTakesTheBottomEllipsoid();
    void renameRefusedByTheCatalogueChangesNothing();
    void hiddenGroupTakesNoSystem();
    void nameDialogIsPreparedAnew();
    void nameDialogChecks_data();
    void nameDialogChecks();

private:
    void startTree();
    void leftClick(const QString& path);
    void rightClick(const QString& path, const QString& entry, QStringList* entries = nullptr);

    int aliveAtStart = 0;
    std::unique_ptr<RecordingCatalogue> catalogue;
    std::unique_ptr<DlgCoordSysGroups> tree;
};

void DlgCoordSysGroupsTest::init() {
    aliveAtStart = dictionary_alive_count();
    MessageBoxDouble::reset();
    catalogue = std::make_unique<RecordingCatalogue>();
}

void DlgCoordSysGroupsTest::cleanup() {
    QCOMPARE(dictionary_alive_count() - aliveAtStart, catalogue->recordCount());
    QCOMPARE(ModalDriver::pending(), 0);
    tree.reset();
    catalogue.reset();
    QCOMPARE(dictionary_alive_count(), aliveAtStart);
}

void DlgCoordSysGroupsTest::startTree() {
    tree = std::make_unique<DlgCoordSysGroups>(catalogue.get(), nullptr);
    connect(tree.get(), &DlgCoordSysGroups::treeItemClicked, this, [this](const QString& group, const QString& name) {
        catalogue->calls << "treeItemClicked(" + group + "," + name + ")";
    });
    connect(tree.get(), &DlgCoordSysGroups::dataChanged, this, [this] { catalogue->calls << "dataChanged()"; });
    tree->expandAll();
    tree->resize(300, 600);
    tree->show();
    QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
    catalogue->takeCalls();
}

void DlgCoordSysGroupsTest::leftClick(const QString& path) {
    const QPoint pos = tree->visualItemRect(itemAtPath(*tree, path)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
}

void DlgCoordSysGroupsTest::rightClick(const QString& path, const QString& entry, QStringList* entries) {
    const QPoint pos = path == "empty" ? QPoint(20, tree->viewport()->height() - 5)
                                       : tree->visualItemRect(itemAtPath(*tree, path)).center();
    ModalDriver::onNextMenu(entry, entries);
    QTest::mousePress(tree->viewport(), Qt::RightButton, Qt::NoModifier, pos);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, tree->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(tree->viewport(), &event);
    QTest::mouseRelease(tree->viewport(), Qt::RightButton, Qt::NoModifier, pos);
    // The chosen entry is triggered in a turn of its own.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void DlgCoordSysGroupsTest::treeMirrorsTheCatalogue_data() {
    QTest::addColumn<QString>("rawGroupNames");
    QTest::addColumn<bool>("nullLists");
    QTest::addColumn<QString>("expected");
    QTest::newRow("catalogue order") << QString() << false << "A[a1 same a2] B[b1 same] C[]";
    QTest::newRow("empty parts dropped, nothing trimmed") << ",B,, D,A," << false << "B[b1 same]  D[] A[a1 same a2]";
    QTest::newRow("only commas") << ",,," << false << QString();
    QTest::newRow("null lists") << QString() << true << QString();
}

void DlgCoordSysGroupsTest::treeMirrorsTheCatalogue() {
    QFETCH(QString, rawGroupNames);
    QFETCH(bool, nullLists);
    fillCatalogue(*catalogue);
    catalogue->rawGroupNames = rawGroupNames;
    catalogue->nullLists = nullLists;
    tree = std::make_unique<DlgCoordSysGroups>(catalogue.get(), nullptr);

    QTEST(dump(*tree), "expected");
    QTreeWidgetItem* root = tree->topLevelItem(0);
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(root->text(0), QString("CoordSysGroup"));
    QVERIFY(root->isExpanded());
    QCOMPARE(tree->currentItem(), root);
    for (QTreeWidgetItemIterator it(tree.get()); *it; ++it) {
        const int level = (*it == root) ? 0 : ((*it)->parent() == root ? 1 : 2);
        QCOMPARE((*it)->data(0, Qt::UserRole).toInt(), level);
        QCOMPARE((*it)->toolTip(0), level == 0 ? QString() : (*it)->text(0));
        QVERIFY(level == 0 || !(*it)->isExpanded());
    }
}

void DlgCoordSysGroupsTest::firstSystemIsAnnounced_data() {
    QTest::addColumn<QStringList>("groups"); // name, systems ... per group
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("current");
    QTest::newRow("empty catalogue") << QStringList() << QStringList() << "CoordSysGroup";
    QTest::newRow("first group empty") << QStringList{"E", "A:a1"} << QStringList() << "CoordSysGroup";
    QTest::newRow("first of several") << QStringList{"A:a1 a2", "B:b1"} << QStringList{"treeItemClicked(A,a1)"}
                                      << "A/a1";
}

void DlgCoordSysGroupsTest::firstSystemIsAnnounced() {
    QFETCH(QStringList, groups);
    for (const QString& group : groups)
        catalogue->addTestGroup(group.section(':', 0, 0), group.section(':', 1).split(' ', Qt::SkipEmptyParts));
    startTree();
    tree->collapseAll();
    tree->topLevelItem(0)->setExpanded(true);
    tree->selectFirstCoordSystem();

    QTEST(catalogue->takeCalls(), "expected");
    QTEST(pathOf(tree->currentItem()), "current");
    QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem*>{tree->currentItem()});
    if (!groups.isEmpty())
        QVERIFY(tree->topLevelItem(0)->child(0)->isExpanded());
}

void DlgCoordSysGroupsTest::clickAnnouncesSystemsOnly() {
    fillCatalogue(*catalogue);
    startTree();
    leftClick("B/same");
    leftClick("B/same");
    leftClick("A");
    leftClick("root");
    QCOMPARE(catalogue->takeCalls(), (QStringList{"treeItemClicked(B,same)", "treeItemClicked(B,same)"}));
}

void DlgCoordSysGroupsTest::menuFollowsTheItem_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("entries");
    const QStringList rootEntries{"AddSysGroup", "Edit Ellipsoid", "AddGeoid"};
    QTest::newRow("empty space") << "empty" << rootEntries;
    QTest::newRow("root") << "root" << rootEntries;
    QTest::newRow("group") << "B" << QStringList{"ImportCoordSys", "AddCoordSys", "EditSysGroup", "DelSysGroup"};
    QTest::newRow("system") << "A/a1" << QStringList{"EditSys", "DelSys"};
}

void DlgCoordSysGroupsTest::menuFollowsTheItem() {
    QFETCH(QString, path);
    fillCatalogue(*catalogue);
    startTree();
    QStringList entries;
    rightClick(path, QString(), &entries);
    QTEST(entries, "entries");
    if (path != "empty")
        QCOMPARE(tree->currentItem(), itemAtPath(*tree, path));
}

void DlgCoordSysGroupsTest::command_data() {
    QTest::addColumn<QString>("clicked"); // left-clicked first
    QTest::addColumn<QString>("on");      // right-clicked, or "button" for the window's Add
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("typed"); // the name, "yes"/"no" for a question
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QString>("treeAfter");
    QTest::addColumn<QString>("currentAfter");
    const QString unchanged = "A[a1 same a2] B[b1 same] C[]";

    QTest::newRow("add group, whatever is current")
        << "A/a1"
        << "empty"
        << "AddSysGroup"
        << "N %s" << QStringList{"hasGroup(N %s)", "hasGroup(N %s)", "addGroup(N %s)"} << "N %s[] " + unchanged
        << "N %s";
    QTest::newRow("add group cancelled") << "A/a1"
                                         << "root"
                                         << "AddSysGroup" << cancel << QStringList() << unchanged << "CoordSysGroup";
    QTest::newRow("add system")
        << "A/a1"
        << "B"
        << "AddCoordSys"
        << "a1" << QStringList{"getGroup(B)",           "B.getCoordSystem(a1)",   "getGroup(B)",
                               "B.hasCoordSystem(a1)",  "B.getCoordSystem(same)", "B.addCoordSystem(a1)",
                               "treeItemClicked(B,a1)", "dataChanged()"}
        << "A[a1 same a2] B[a1 b1 same] C[]"
        << "B/a1";
    QTest::newRow("add system to an empty group") << "A/a1"
                                                  << "C"
                                                  << "AddCoordSys"
                                                  << "100% é"
                                                  << QStringList{"getGroup(C)",
                                                                 "C.getCoordSystem(100% é)",
                                                                 "getGroup(C)",
                                                                 "C.hasCoordSystem(100% é)",
                                                                 "C.addCoordSystem(100% é)",
                                                                 "treeItemClicked(C,100% é)",
                                                                 "dataChanged()"}
                                                  << "A[a1 same a2] B[b1 same] C[100% é]"
                                                  << "C/100% é";
    QTest::newRow("Add button on the root")
        << "root"
        << "button"
        << ""
        << "N" << QStringList{"hasGroup(N)", "hasGroup(N)", "addGroup(N)"} << "N[] " + unchanged << "N";
    QTest::newRow("Add button on a system")
        << "B/b1"
        << "button"
        << ""
        << "N" << QStringList{"getGroup(B)",          "B.getCoordSystem(N)",    "getGroup(B)",
                              "B.hasCoordSystem(N)",  "B.getCoordSystem(same)", "B.addCoordSystem(N)",
                              "treeItemClicked(B,N)", "dataChanged()"}
        << "A[a1 same a2] B[N b1 same] C[]"
        << "B/N";
    QTest::newRow("Add button on a system, cancelled") << "B/b1"
                                                       << "button"
                                                       << "" << cancel << QStringList() << unchanged << "B";
    QTest::newRow("rename group announces the current system's name")
        << "A/a1"
        << "B"
        << "EditSysGroup"
        << "B2" << QStringList{"hasGroup(B2)", "renameGroup(B,B2)", "treeItemClicked(B2,a1)", "dataChanged()"}
        << "A[a1 same a2] B2[b1 same] C[]"
        << "B2";
    QTest::newRow("rename group cancelled") << "A/a1"
                                            << "B"
                                            << "EditSysGroup" << cancel << QStringList() << unchanged << "B";
    QTest::newRow("rename system") << "A/a1"
                                   << "B/b1"
                                   << "EditSys"
                                   << "b2" << QStringList{"getGroup(B)",           "B.getCoordSystem(b2)",
                                                          "getGroup(B)",           "B.renameCoordSystem(b1,b2)",
                                                          "treeItemClicked(B,b2)", "dataChanged()"}
                                   << "A[a1 same a2] B[b2 same] C[]"
                                   << "B/b2";
    QTest::newRow("delete group") << "A/a1"
                                  << "A"
                                  << "DelSysGroup"
                                  << "yes" << QStringList{"deleteGroup(A)", "dataChanged()"}
                                  << "-A[a1 same a2] B[b1 same] C[]"
                                  << "A";
    QTest::newRow("delete group declined") << "A/a1"
                                           << "A"
                                           << "DelSysGroup"
                                           << "no" << QStringList() << unchanged << "A";
    QTest::newRow("delete system from its own group")
        << "A/same"
        << "B/same"
        << "DelSys"
        << "yes" << QStringList{"getGroup(B)", "B.deleteCoordSystem(same)", "dataChanged()"}
        << "A[a1 same a2] B[b1 -same] C[]"
        << "B/same";
    QTest::newRow("delete system declined") << "A/same"
                                            << "B/same"
                                            << "DelSys"
                                            << "no" << QStringList() << unchanged << "B/same";
}

void DlgCoordSysGroupsTest::command() {
    QFETCH(QString, clicked);
    QFETCH(QString, on);
    QFETCH(QString, entry);
    QFETCH(QString, typed);
    fillCatalogue(*catalogue);
    startTree();
    leftClick(clicked);
    catalogue->takeCalls();

    const bool question = entry.startsWith("Del");
    if (question)
        MessageBoxDouble::answers = {typed == "yes" ? 1 : 0};
    else
        answerNameDialog(typed);
    if (on == "button")
        tree->addCoordGroup();
    else
        rightClick(on, entry);

    QTEST(catalogue->takeCalls(), "log");
    QTEST(dump(*tree), "treeAfter");
    QTEST(pathOf(tree->currentItem()), "currentAfter");
    QCOMPARE(tree->currentItem()->toolTip(0),
             tree->currentItem() == tree->topLevelItem(0) ? QString() : tree->currentItem()->text(0));
    QStringList questions;
    if (question)
        questions << QString(on.contains('/') ? "?Warning|are you sure delete coord system %1 ?"
                                              : "?Warning|are you sure delete coord system group %1 ?")
                         .arg(on.section('/', -1));
    QCOMPARE(MessageBoxDouble::texts(), questions);
    QVERIFY(tree->currentItem()->parent() == nullptr || tree->currentItem()->parent()->isExpanded());
}

void DlgCoordSysGroupsTest::newSystemTakesTheBottomEllipsoid() {
    fillCatalogue(*catalogue);
    startTree();
    leftClick("A");
    answerNameDialog("new");
    tree->addCoordGroup();
    const IDictionary* record = catalogue->group("A")->systems.find("new");
    QVERIFY(record);
    QStringList pairs;
    for (int i = 0; i < record->count(); ++i)
        pairs << QString("%1=%2").arg(record->getKey(i), record->getValue(record->getKey(i)));
    QCOMPARE(pairs, (QStringList{"ellipsoid_name=Bessel 1841", "ellipsoid_a=6377397.155000", "ellipsoid_f=299.152813",
                                 "name=new"}));

    // The bottom item is hidden once its system is deleted: it then gives nothing.
    MessageBoxDouble::answers = {1};
    rightClick("A/a2", "DelSys");
    leftClick("A");
    answerNameDialog("newer");
    tree->addCoordGroup();
    QCOMPARE(catalogue->group("A")->systems.find("newer")->count(), 1);

    // A catalogue that still holds the hidden item's system gives its ellipsoid.
    catalogue->addTestSystem("A", "a2", {"ellipsoid_name", "Krassowsky 1940"});
    leftClick("A");
    answerNameDialog("newest");
    tree->addCoordGroup();
    QCOMPARE(catalogue->group("A")->systems.find("newest")->getValue("ellipsoid_name"), "Krassowsky 1940");
}

void DlgCoordSysGroupsTest::renameRefusedByTheCatalogueChangesNothing() {
    fillCatalogue(*catalogue);
    startTree();
    catalogue->refuseRename = true;
    const QString before = dump(*tree);
    answerNameDialog("B2");
    rightClick("B", "EditSysGroup");
    answerNameDialog("b2");
    rightClick("B/b1", "EditSys");
    QCOMPARE(dump(*tree), before);
    const QStringList calls = catalogue->takeCalls();
    QVERIFY(calls.contains("renameGroup(B,B2)") && calls.contains("B.renameCoordSystem(b1,b2)"));
    QVERIFY(calls.filter("treeItemClicked").isEmpty() && calls.filter("dataChanged").isEmpty());
}

void DlgCoordSysGroupsTest::hiddenGroupTakesNoSystem() {
    fillCatalogue(*catalogue);
    startTree();
    MessageBoxDouble::answers = {1};
    rightClick("B", "DelSysGroup");
    QVERIFY(tree->currentItem()->isHidden());
    const QString before = dump(*tree);
    catalogue->takeCalls();
    answerNameDialog("new");
    tree->addCoordGroup();
    QCOMPARE(catalogue->takeCalls(), (QStringList{"getGroup(B)", "getGroup(B)"}));
    QCOMPARE(dump(*tree), before);

    // Its name is free again.
    answerNameDialog("B");
    rightClick("empty", "AddSysGroup");
    QCOMPARE(dump(*tree), QString("B[] A[a1 same a2] -B[b1 same] C[]"));
}

void DlgCoordSysGroupsTest::nameDialogIsPreparedAnew() {
    fillCatalogue(*catalogue);
    startTree();
    QStringList seen;
    const auto look = [&seen](bool byCancelButton) {
        ModalDriver::onNextDialog([&seen, byCancelButton](QDialog* dialog) {
            auto* input = qobject_cast<DlgInputName*>(dialog);
            QVERIFY(input);
            seen << QString("%1|%2|%3|%4|%5|%6")
                        .arg(input->windowTitle(), input->groupName, input->coordName)
                        .arg(input->nameType)
                        .arg(input->nameEdit->text(), input->nameEdit->selectedText());
            QCOMPARE(input->focusWidget(), input->nameEdit);
            auto* cancelButton = input->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
            if (byCancelButton) {
                cancelButton->setFocus();
                QTest::mouseClick(cancelButton, Qt::LeftButton);
            } else {
                QTest::keyClick(input->nameEdit, Qt::Key_Escape);
            }
        });
    };
    for (const bool byCancelButton : {true, false}) {
        look(byCancelButton);
        rightClick("A/a1", "EditSys");
        look(byCancelButton);
        rightClick("B", "AddCoordSys");
        look(byCancelButton);
        rightClick("B", "EditSysGroup");
        look(byCancelButton);
        rightClick("root", "AddSysGroup");
    }
    const QStringList once{"EditSys|A|a1|1|a1|a1", "AddCoordSys|B||1||", "EditSysGroup|B||0|B|B", "AddSysGroup|||0||"};
    QCOMPARE(seen, once + once);
}

void DlgCoordSysGroupsTest::nameDialogChecks_data() {
    QTest::addColumn<int>("nameType");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    const QString content = "please input valid content!";
    const QString sameGroup = "has same as coord group name!";
    const QString sameSystem = "has same as coord system name!";
    QTest::newRow("group: empty") << 0 << "" << content;
    QTest::newRow("system: empty") << 1 << "" << content;
    QTest::newRow("group: comma") << 0 << "x,y" << content;
    QTest::newRow("system: comma") << 1 << "," << content;
    QTest::newRow("group: blanks pass") << 0 << "  " << QString();
    QTest::newRow("group: taken, or unchanged") << 0 << "A" << sameGroup;
    QTest::newRow("group: other case passes") << 0 << "a" << QString();
    QTest::newRow("group: a system's name passes") << 0 << "a1" << QString();
    QTest::newRow("system: taken, or unchanged") << 1 << "a1" << sameSystem;
    QTest::newRow("system: taken in another group only") << 1 << "b1" << QString();
    QTest::newRow("system: a group's name passes") << 1 << "A" << QString();
    QTest::newRow("any other type asks for a system") << 7 << "a1" << sameSystem;
}

void DlgCoordSysGroupsTest::nameDialogChecks() {
    QFETCH(int, nameType);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    fillCatalogue(*catalogue);
    DlgInputName dialog(nullptr, catalogue.get());
    QCOMPARE(dialog.windowTitle(), QString("please input name"));
    dialog.groupName = "A";
    dialog.nameType = nameType;
    dialog.nameEdit->setText(typed);
    dialog.show();
    QTest::keyClick(dialog.nameEdit, Qt::Key_Return);
    QCOMPARE(dialog.isVisible(), !message.isNull());
    QCOMPARE(dialog.result(), message.isNull() ? int(QDialog::Accepted) : int(QDialog::Rejected));
    QCOMPARE(dialog.getName(), typed);
    QCOMPARE(MessageBoxDouble::texts(), message.isNull() ? QStringList() : QStringList("information|" + message));
}

ROOM_TEST_MAIN(DlgCoordSysGroupsTest)
#include "DlgCoordSysGroupsTest.moc"
