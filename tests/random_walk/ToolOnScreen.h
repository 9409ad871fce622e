#pragma once

#include "CatalogueText.h"
#include "app/VornCoordSysMainWindow.h"
#include "panel/DlgCoordParam.h"
#include "tree/DlgCoordSysGroups.h"

#include <QtWidgets>

#include <memory>

/// The tool's window, real in every part, and what became known of it since it was started.
class ToolOnScreen : public QObject {
public:
    /// The tool keeps its files below the folder that stands for the user's home.
    explicit ToolOnScreen(const QString& home) : dataFolder(home + "/Documents/ArvelaGnss/Data/") {}

    /// Shows the window; a second time it ends the first one and reads the files anew.
    void start() {
        window.reset(); // before the next one: there is one catalogue
        leftBehind = QApplication::allWidgets().size();
        window = std::make_unique<VornCoordSysMainWindow>(nullptr);
        tree = window->findChild<DlgCoordSysGroups*>();
        panel = window->findChild<DlgCoordParam*>();
        tree->setAnimated(false);
        for (QPushButton* button : window->findChildren<QPushButton*>()) {
            for (const auto& [text, known] :
                 {std::pair("Add", &addButton), {"Save", &saveButton}, {"Exit", &exitButton}}) {
                if (button->text() == text && !panel->isAncestorOf(button))
                    *known = button;
            }
        }
        connect(tree, &DlgCoordSysGroups::treeItemClicked, this, &ToolOnScreen::announce);
        connect(tree, &DlgCoordSysGroups::dataChanged, this, [this] { ++changes; });
        connect(panel, &DlgCoordParam::dataChanged, this, [this] { ++changes; });
        saveButton->installEventFilter(this);
        catalogue = get_instance_ICoordSystem("", 0);
        loaded = CatalogueText::systems(*catalogue);
        isStarted = true;
        changes = 0;

        // By the start-up's selection.
        const QTreeWidgetItem* const first = tree->topLevelItem(0)->child(0);
        const bool isShown = first && first->childCount() > 0;
        announce(isShown ? first->text(0) : QString(), isShown ? first->child(0)->text(0) : QString());
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
    }

    /// The items of `level` that can be seen or scrolled to, in the order on screen.
    QVector<QTreeWidgetItem*> items(int level) const {
        QVector<QTreeWidgetItem*> items;
        for (QTreeWidgetItemIterator it(tree, QTreeWidgetItemIterator::NotHidden); *it; ++it) {
            const bool parentHidden = (*it)->parent() && (*it)->parent()->isHidden();
            if (!parentHidden && (*it)->data(0, Qt::UserRole).toInt() == level)
                items << *it;
        }
        return items;
    }

    /// "group,system" of the system announced last, as CatalogueText has it.
    QByteArray announced() const { return announcedGroup.toLocal8Bit() + ',' + announcedName.toLocal8Bit(); }

    QString dataFolder;
    ICoordSystem* catalogue = nullptr;
    std::unique_ptr<VornCoordSysMainWindow> window;
    DlgCoordSysGroups* tree = nullptr;
    DlgCoordParam* panel = nullptr;
    QPushButton *addButton = nullptr, *saveButton = nullptr, *exitButton = nullptr;

    QString announcedGroup, announcedName;
    CatalogueText saved;   ///< the systems at the last save or start
    int changes = 0;       ///< how often dataChanged() came since
    bool isSaveNew = true; ///< nobody has looked at the file since
    bool isStarted = true; ///< nobody has looked since the start at what it loaded:
    CatalogueText loaded;
    int leftBehind = 0; ///< how many widgets outlived the last window

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange && !saveButton->isEnabled() && window->isEnabled()) {
            saved = CatalogueText::systems(*catalogue);
            changes = 0;
            isSaveNew = true;
        }
        return QObject::eventFilter(object, event);
    }

private:
    void announce(const QString& group, const QString& name) {
        announcedGroup = group;
        announcedName = name;
    }
};
