#include "tree/DlgCoordSysGroups.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "geodesy/DlgEllipsoid.h"
#include "geodesy/DlgGeoid.h"
#include "support/Files.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/RecordText.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"
#include "tree/DlgInputName.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QTreeWidget>
#include <QTreeWidgetItem>
#include <QTreeWidgetItemIterator>

namespace {

const char* const cancel = "<cancel>";
const QString own = "DlgCoordSysGroups:"; ///< the context in which the tree's own texts are translated

// The catalogue of most rows: two groups that share a system's name, and an empty one.
void fillCatalogue(RecordingCatalogue& catalogue) {
    catalogue.addTestGroup("A", {"a1", "same"});
    catalogue.addTestSystem("A", "a<2>",
                            {"ellipsoid_name", "Bessel 1841", "ellipsoid_a", "6377397.155000", "ellipsoid_f",
                             "299.152813", "factor", "1.000000"});
    catalogue.addTestGroup("B", {"b1", "same"});
    catalogue.addTestGroup("C");
}

QString pathOf(const QTreeWidgetItem* item) {
    if (!item->parent())
        return "root";
    return item->parent()->parent() ? item->parent()->text(0) + "/" + item->text(0) : item->text(0);
}

/// The item at "root", "group" or "group/system"; not a hidden one.
QTreeWidgetItem* itemAtPath(QTreeWidget& tree, const QString& path) {
    for (QTreeWidgetItemIterator it(&tree, QTreeWidgetItemIterator::NotHidden); *it; ++it) {
        if (pathOf(*it) == path)
            return *it;
    }
    return nullptr;
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

} // namespace

class DlgCoordSysGroupsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        aliveAtStart = dictionary_alive_count();
        MessageBoxDouble::reset();
        catalogue = std::make_unique<RecordingCatalogue>();
        fillCatalogue(*catalogue);
    }

    void cleanup() {
        QCOMPARE(dictionary_alive_count() - aliveAtStart, catalogue->recordCount());
        QCOMPARE(ModalDriver::pending(), 0);
        tree.reset();
        catalogue.reset();
        QCOMPARE(dictionary_alive_count(), aliveAtStart);
    }

    void treeMirrorsTheCatalogue_data() {
        const Rows<QString, bool, QString> row({"rawGroupNames", "nullLists", "expected"});
        row("catalogue order", {}, false, "A[a1 same a<2>] B[b1 same] C[]");
        row("empty parts dropped, nothing trimmed", ",B,, D,A,", false, "B[b1 same]  D[] A[a1 same a<2>]");
        row("only commas", ",,,", false, {});
        row("null lists", {}, true, {});
    }

    void treeMirrorsTheCatalogue() {
        QFETCH(QString, rawGroupNames);
        QFETCH(bool, nullLists);
        QFETCH(QString, expected);
        catalogue->rawGroupNames = rawGroupNames;
        catalogue->nullLists = nullLists;
        tree = std::make_unique<DlgCoordSysGroups>(catalogue.get(), nullptr);

        QCOMPARE(dump(*tree), expected);
        QVERIFY(tree->isAnimated() && tree->isHeaderHidden());
        QTreeWidgetItem* root = tree->topLevelItem(0);
        QVERIFY(tree->topLevelItemCount() == 1 && root->isExpanded());
        QCOMPARE(root->text(0), own + "CoordSysGroup");
        QCOMPARE(tree->currentItem(), root);
        for (QTreeWidgetItemIterator it(tree.get()); *it; ++it) {
            const int level = (*it == root) ? 0 : ((*it)->parent() == root ? 1 : 2);
            QCOMPARE((*it)->data(0, Qt::UserRole).toInt(), level);
            QCOMPARE((*it)->toolTip(0), level == 0 ? QString() : (*it)->text(0));
            QVERIFY(level == 0 || !(*it)->isExpanded());
        }
    }

    void firstSystemIsAnnounced_data() {
        // groups: name, systems ... per group
        const Rows<QStringList, QStringList, QString> row({"groups", "expected", "current"});
        row("empty catalogue", {}, {}, "root");
        row("first group empty", {"E", "A:a1"}, {}, "root");
        row("first of several", {"A:a1 a<2>", "B:b1"}, {"treeItemClicked(A,a1)"}, "A/a1");
    }

    void firstSystemIsAnnounced() {
        QFETCH(QStringList, groups);
        QFETCH(QStringList, expected);
        QFETCH(QString, current);
        catalogue->groups.clear();
        for (const QString& group : groups)
            catalogue->addTestGroup(group.section(':', 0, 0), group.section(':', 1).split(' ', Qt::SkipEmptyParts));
        startTree();
        tree->collapseAll();
        tree->topLevelItem(0)->setExpanded(true);
        tree->selectFirstCoordSystem();

        QCOMPARE(catalogue->takeCalls(), expected);
        QCOMPARE(pathOf(tree->currentItem()), current);
        QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem*>{tree->currentItem()});
        if (!groups.isEmpty())
            QVERIFY(tree->topLevelItem(0)->child(0)->isExpanded());
    }

    void clickAnnouncesSystemsOnly() {
        startTree();
        leftClick("B/same");
        leftClick("B/same");
        leftClick("A");
        leftClick("root");
        QCOMPARE(catalogue->takeCalls(), (QStringList{"treeItemClicked(B,same)", "treeItemClicked(B,same)"}));
    }

    void menuFollowsTheItem_data() { textRows("menus.txt"); }
    void menuFollowsTheItem() {
        const auto [item, entries] = textRow<2>();
        startTree();
        QStringList shown;
        QPoint place;
        QCursor::setPos(123, 45); // the menu comes where the mouse is by now
        rightClick(item, QString(), &shown, &place);
        QCOMPARE(shown.join("; "), entries);
        QCOMPARE(place, QPoint(123, 45));
    }

    void menuByKeys_data() { textRows("menus.txt"); }

    /// It is the current item's, wherever the tree is scrolled to; an item that is hidden has the empty space's.
    void menuByKeys() {
        const auto [item, entries] = textRow<2>();
        startTree();
        tree->setAnimated(false);
        tree->expandAll();
        QTreeWidgetItem* const current = itemAtPath(*tree, item == "empty" ? QString("B") : item);
        current->setHidden(item == "empty");
        tree->setCurrentItem(current);
        tree->resize(tree->width(), 40);
        QCursor::setPos(123, 45);
        for (const bool isMenuKey : {true, false}) {
            QScrollBar* const bar = tree->verticalScrollBar();
            bar->setValue(item == "root" ? bar->maximum() : 0);
            QStringList shown;
            QPoint place;
            ModalDriver::onNextMenu(QString(), &shown, &place);
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            if (isMenuKey)
                QApplication::sendEvent(tree.get(), &event);
            else
                QTest::keyClick(tree.get(), Qt::Key_F10, Qt::ShiftModifier);
            QCOMPARE(shown.join("; "), entries);
            QCOMPARE(place, QPoint(123, 45));
        }
    }

    void enterClicks() {
        startTree();
        for (const char* item : {"B/same", "A", "root"}) {
            tree->setCurrentItem(itemAtPath(*tree, item));
            QTest::keyClick(tree.get(), Qt::Key_Return);
        }
        itemAtPath(*tree, "B/same")->setHidden(true);
        tree->setCurrentItem(itemAtPath(*tree, "B/same"));
        QTest::keyClick(tree.get(), Qt::Key_Enter);
        QCOMPARE(catalogue->takeCalls(), QStringList("treeItemClicked(B,same)"));
    }

    void command_data() { textRows("commands.txt"); }

    void command() {
        const auto [title, clicked, on, entry, asked, typed, log, treeAfter, currentAfter, namesAfter] = textRow<10>();
        startTree();
        // The name dialog is used again and again; its Cancel button had the focus last.
        ModalDriver::onNextDialog([](QDialog* dialog) {
            auto* button = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
            button->setFocus();
            QTest::mouseClick(button, Qt::LeftButton);
        });
        rightClick("A/same", "EditSys");
        leftClick(clicked);
        catalogue->takeCalls();

        catalogue->refuseRename = typed == "refused";
        const bool question = entry.startsWith("Del");
        QString dialogText;
        if (question)
            MessageBoxDouble::answers = {typed == "yes" ? 1 : 0};
        else
            answerNameDialog(typed, &dialogText);
        if (on == "button")
            tree->addCoordGroup();
        else
            rightClick(on, entry);

        QCOMPARE(catalogue->takeCalls().join("; "), log);
        QCOMPARE(dump(*tree), treeAfter);
        QCOMPARE(pathOf(tree->currentItem()), currentAfter);
        if (currentAfter != "root")
            QCOMPARE(tree->currentItem()->toolTip(0), tree->currentItem()->text(0));
        QVERIFY(tree->currentItem()->parent() == nullptr || tree->currentItem()->parent()->isExpanded());
        QCOMPARE(question ? MessageBoxDouble::texts().join("; ") : dialogText,
                 (question ? "?QObject:Warning|" : "") + own + asked);
        if (question)
            QCOMPARE(MessageBoxDouble::messages[0].parent, tree.get());
        QCOMPARE(currentNames(), namesAfter);
    }

    void toolTipIsTheNameLetterForLetter() {
        const QString markup = "<b>x  &amp; y";
        catalogue->addTestSystem("A", markup);
        startTree();
        for (const QString& name : {QString("a1"), markup}) {
            const QPoint pos = tree->visualItemRect(itemAtPath(*tree, "A/" + name)).center();
            QHelpEvent event(QEvent::ToolTip, pos, tree->viewport()->mapToGlobal(pos));
            QApplication::sendEvent(tree->viewport(), &event);
            const QString text = QToolTip::text();
            QCOMPARE(Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text, name);
            QToolTip::hideText();
        }
    }

    void catalogueDialogs_data() {
        // `announced` is empty where nothing is.
        const Rows<QString, QString, QString> row({"clicked", "announced", "currentAfter"});
        row("nothing was clicked", "", "", "root");
        row("announced anew", "A/a1", "treeItemClicked(A,a1)", "A/a1");
        row("the last item of that name, though hidden", "A/same", "treeItemClicked(B,same)", "B/same");
        row("the last item is a group", "A/C", "", "C");
    }

    /// Each entry opens its own dialog, in list mode, and afterwards the current system is announced once more.
    void catalogueDialogs() {
        QFETCH(QString, clicked);
        QFETCH(QString, announced);
        QFETCH(QString, currentAfter);
        catalogue->addTestSystem("A", "C");
        startTree();
        itemAtPath(*tree, "B/same")->setHidden(true);
        for (const bool geoids : {false, true}) {
            if (!clicked.isEmpty())
                leftClick(clicked);
            catalogue->takeCalls();
            ModalDriver::onNextDialog([&](QDialog* dialog) {
                QVERIFY(geoids ? qobject_cast<DlgGeoid*>(dialog) != nullptr
                               : qobject_cast<DlgEllipsoid*>(dialog) != nullptr);
                QCOMPARE(dialog->parentWidget(), tree.get());
                QCOMPARE(dialog->findChildren<QDialogButtonBox*>().count(), 0); // those of add and edit mode
                catalogue->takeCalls();
                dialog->reject();
            });
            rightClick("root", geoids ? "QObject:AddGeoid" : "QObject:Edit Ellipsoid");
            QCOMPARE(ModalDriver::pending(), 0);
            QCOMPARE(catalogue->takeCalls(), announced.isEmpty() ? QStringList() : QStringList(announced));
            QCOMPARE(pathOf(tree->currentItem()), currentAfter);
            if (!tree->currentItem()->isHidden())
                QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem*>{tree->currentItem()});
        }
    }

    void newSystemTakesTheBottomEllipsoid() {
        startTree();
        const auto added = [this](const QString& name) {
            leftClick("A");
            answerNameDialog(name);
            tree->addCoordGroup();
            return recordText(*catalogue->group("A")->systems.find(name));
        };
        QCOMPARE(added("new"), (QStringList{"ellipsoid_name=Bessel 1841", "ellipsoid_a=6377397.155000",
                                            "ellipsoid_f=299.152813", "name=new"}));

        // The bottom item is hidden once its system is deleted: it then gives nothing.
        MessageBoxDouble::answers = {1};
        rightClick("A/a<2>", "DelSys");
        QCOMPARE(added("newer"), QStringList("name=newer"));

        // A catalogue that still holds the hidden item's system gives its ellipsoid.
        catalogue->addTestSystem("A", "a<2>", {"ellipsoid_name", "Krassowsky 1940"});
        QVERIFY(added("newest").contains("ellipsoid_name=Krassowsky 1940"));
    }

    void hiddenGroupTakesNoSystem() {
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
        QCOMPARE(dump(*tree), QString("B[] A[a1 same a<2>] -B[b1 same] C[]"));
    }

private:
    void startTree() {
        tree = std::make_unique<DlgCoordSysGroups>(catalogue.get(), nullptr);
        connect(tree.get(), &DlgCoordSysGroups::treeItemClicked, this,
                [this](const QString& group, const QString& name) {
                    catalogue->calls << "treeItemClicked(" + group + "," + name + ")";
                });
        connect(tree.get(), &DlgCoordSysGroups::dataChanged, this, [this] { catalogue->calls << "dataChanged()"; });
        tree->expandAll();
        tree->resize(300, 600);
        tree->show();
        QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
        catalogue->takeCalls();
    }

    /// The current names, as an import, whose rebuild keeps both, and a renamed group show them.
    QString currentNames() {
        const QTemporaryDir folder;
        const QString file = folder.filePath("a.prj");
        setContent(file, R"(PROJCS["new one",GEOGCS["g",DATUM["d",SPHEROID["s",6378137,298.25]],PRIMEM["p",0],)"
                         R"(UNIT["degree",0.0174532925199433]],PROJECTION["Mercator_1SP"],UNIT["metre",1]])");
        QStringList groups;
        for (int i = 0; i < 2; ++i) {
            catalogue->takeCalls();
            ModalDriver::onNextDialog([&](QDialog* dialog) {
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
                QMetaObject::invokeMethod(dialog, "accept");
            });
            QMetaObject::invokeMethod(tree.get(), "_onImpCoordSystem");
            groups << catalogue->takeCalls().value(0).remove("getGroup(").remove(')');
        }
        catalogue->refuseRename = false;
        tree->expandAll();
        answerNameDialog("C2");
        rightClick("C", "EditSysGroup");
        groups.removeDuplicates();
        const QString announced = catalogue->takeCalls().filter("treeItemClicked(C2,").join("; ");
        return groups.join("; ") + '/' + announced.section(',', 1).remove(')');
    }

    /// Types a name into the name dialog and confirms it; `asked` becomes what the dialog showed before.
    void answerNameDialog(const QString& typed, QString* asked = nullptr) {
        ModalDriver::onNextDialog([this, typed, asked](QDialog* dialog) {
            auto* input = qobject_cast<DlgInputName*>(dialog);
            QVERIFY(input && input->parentWidget() == tree.get());
            QLineEdit* edit = input->nameEdit;
            QCOMPARE(input->focusWidget(), edit);
            if (asked)
                *asked = QStringList{input->windowTitle(), input->groupName,
                                     input->coordName,     QString::number(input->nameType),
                                     edit->text(),         edit->selectedText()}
                             .join(", ")
                             .trimmed();
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

    void leftClick(const QString& path) {
        const QPoint pos = tree->visualItemRect(itemAtPath(*tree, path)).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }

    void rightClick(const QString& path, const QString& entry, QStringList* entries = nullptr,
                    QPoint* place = nullptr) {
        const QPoint pos = path == "empty" ? QPoint(20, tree->viewport()->height() - 5)
                                           : tree->visualItemRect(itemAtPath(*tree, path)).center();
        ModalDriver::onNextMenu(entry.contains(':') ? entry : own + entry, entries, place);
        QTest::mousePress(tree->viewport(), Qt::RightButton, Qt::NoModifier, pos);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, tree->viewport()->mapToGlobal(pos));
        QApplication::sendEvent(tree->viewport(), &event);
        QTest::mouseRelease(tree->viewport(), Qt::RightButton, Qt::NoModifier, pos);
        // The chosen entry is triggered in a turn of its own.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    const MarkingTranslator translator;
    int aliveAtStart = 0;
    std::unique_ptr<RecordingCatalogue> catalogue;
    std::unique_ptr<DlgCoordSysGroups> tree;
};

ROOM_TEST(DlgCoordSysGroupsTest)
#include "DlgCoordSysGroupsTest.moc"
