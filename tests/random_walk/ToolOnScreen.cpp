#include "ToolOnScreen.h"

#include "app/VornCoordSysMainWindow.h"
#include "catalogue/ICoordSystem.h"
#include "panel/DlgCoordParam.h"
#include "tree/DlgCoordSysGroups.h"

#include <QtWidgets>

ToolOnScreen::ToolOnScreen(const QString& home) : dataFolder(home + "/Documents/ArvelaGnss/Data/") {
}

ToolOnScreen::~ToolOnScreen() = default;

void ToolOnScreen::start() {
    window.reset(); // before the next one: there is one catalogue
    leftBehind = QApplication::allWidgets().size();
    window = std::make_unique<VornCoordSysMainWindow>(nullptr);
    tree = window->findChild<DlgCoordSysGroups*>();
    panel = window->findChild<DlgCoordParam*>();
    tree->setAnimated(false);
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        for (const auto& known : {std::make_pair("Add", &addButton), {"Save", &saveButton}, {"Exit", &exitButton}}) {
            if (button->text() == known.first && !panel->isAncestorOf(button))
                *known.second = button;
        }
    }
    connect(tree, SIGNAL(treeItemClicked(QString, QString)), this, SLOT(_onAnnounced(QString, QString)));
    connect(tree, SIGNAL(dataChanged()), this, SLOT(_onChanged()));
    connect(panel, SIGNAL(dataChanged()), this, SLOT(_onChanged()));
    saveButton->installEventFilter(this);
    catalogue = get_instance_ICoordSystem("", 0);
    loaded = CatalogueText::systems(*catalogue);
    isStarted = true;
    changes = 0;

    // By the start-up's selection.
    announcedGroup = announcedName = QString();
    const QTreeWidgetItem* const first = tree->topLevelItem(0)->child(0);
    if (first && first->childCount() > 0)
        _onAnnounced(first->text(0), first->child(0)->text(0));
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
}

QVector<QTreeWidgetItem*> ToolOnScreen::items(int level) const {
    QVector<QTreeWidgetItem*> items;
    for (QTreeWidgetItemIterator it(tree, QTreeWidgetItemIterator::NotHidden); *it; ++it) {
        const bool parentHidden = (*it)->parent() && (*it)->parent()->isHidden();
        if (!parentHidden && (*it)->data(0, Qt::UserRole).toInt() == level)
            items << *it;
    }
    return items;
}

QByteArray ToolOnScreen::announced() const {
    return announcedGroup.toLocal8Bit() + ',' + announcedName.toLocal8Bit();
}

bool ToolOnScreen::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !saveButton->isEnabled() && window->isEnabled()) {
        saved = CatalogueText::systems(*catalogue);
        changes = 0;
        isSaveNew = true;
    }
    return QObject::eventFilter(object, event);
}

void ToolOnScreen::_onAnnounced(const QString& group, const QString& name) {
    announcedGroup = group;
    announcedName = name;
}

void ToolOnScreen::_onChanged() {
    ++changes;
}
