#include "app/VornCoordSysMainWindow.h"

#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/IDictionary.h"
#include "catalogue/ISystemConfig.h"
#include "catalogue/UserFolders.h"
#include "panel/DlgCoordParam.h"
#include "platform/desktop/VornMessageBox.h"
#include "tree/DlgCoordSysGroups.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

QString inDocuments(const QString& path) {
    return UserFolders::documents() + path;
}

} // namespace

VornCoordSysMainWindow::VornCoordSysMainWindow(QWidget* parent) : QWidget(parent) {
    const char* title = get_system_config_parameter()->getParameters()->getValue("name");
    setWindowTitle(tr(title ? title : ""));
    setMinimumSize(800, 600);

    coordSystem = get_instance_ICoordSystem("", 0);
    coordSystem->load(inDocuments("/ArvelaGnss/Data/").toLocal8Bit().constData());

    coordParam = new DlgCoordParam(coordSystem, this, false);
    connect(coordParam, SIGNAL(dataChanged()), this, SLOT(_onDataChanged()));

    tree = new DlgCoordSysGroups(coordSystem, nullptr);
    connect(tree, SIGNAL(dataChanged()), this, SLOT(_onDataChanged()));
    connect(tree, SIGNAL(treeItemClicked(QString, QString)), this, SLOT(_onTreeItemClicked(QString, QString)));

    auto* buttonLayout = new QHBoxLayout;
    buttonLayout->addStretch();
    addButton = new QPushButton(tr("Add"));
    connect(addButton, SIGNAL(clicked()), tree, SLOT(addCoordGroup()));
    buttonLayout->addWidget(addButton);
    saveButton = new QPushButton(tr("Save"));
    saveButton->setEnabled(false);
    connect(saveButton, SIGNAL(clicked()), this, SLOT(_onSave()));
    buttonLayout->addWidget(saveButton);
    exitButton = new QPushButton(tr("Exit"));
    connect(exitButton, SIGNAL(clicked()), this, SLOT(close()));
    buttonLayout->addWidget(exitButton);

    auto* rightSide = new QWidget;
    auto* rightLayout = new QHBoxLayout(rightSide);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    auto* panelLayout = new QVBoxLayout;
    panelLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addLayout(panelLayout);
    panelLayout->addWidget(coordParam, 1);
    panelLayout->addLayout(buttonLayout, 0);

    auto* mainLayout = new QHBoxLayout(this);
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(tree);
    splitter->addWidget(rightSide);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 2);
    splitter->setAutoFillBackground(true);
    mainLayout->addWidget(splitter);

    tree->selectFirstCoordSystem();
}

void VornCoordSysMainWindow::_onTreeItemClicked(QString sGroup, QString sCoord) {
    shownGroupName = sGroup;
    shownCoordName = sCoord;
    ICoordSysGroup* group = coordSystem->getGroup(sGroup.toLocal8Bit().constData());
    const IDictionary* record = group ? group->getCoordSystem(sCoord.toLocal8Bit().constData()) : nullptr;
    // A panel that shows another system than the one named has nowhere to write an edit to: it must not take any.
    coordParam->setEnabled(record != nullptr);
    if (record)
        coordParam->setCoordParam(*record);
}

void VornCoordSysMainWindow::_onDataChanged() {
    const QByteArray coordName = shownCoordName.toLocal8Bit();
    const IDictionary& record = coordParam->getMetaData();
    ICoordSysGroup* group = coordSystem->getGroup(shownGroupName.toLocal8Bit().constData());
    if (!group || !group->hasCoordSystem(coordName.constData())) {
        // The shown system is gone. Before one was shown, there is none to miss.
        if (!shownCoordName.isEmpty())
            coordParam->setEnabled(false);
    } else if (coordParam->isEnabled()) {
        group->setCoordSystem(coordName.constData(), &record);
    } else {
        // A system of the shown name has come (back): its record is its own, not the one that the panel still holds.
        _onTreeItemClicked(shownGroupName, shownCoordName);
    }
    saveButton->setEnabled(true);
}

void VornCoordSysMainWindow::_onSave() {
    coordSystem->saveCoordSystems("");
    saveButton->setEnabled(false);
    const QString path = inDocuments("/ArvelaGnss/Data/CoordinateSystem_custom.vcs");
    QDir().mkpath(QFileInfo(path).path());
    coordSystem->saveCoordSystems(path.toLocal8Bit().constData());
}

void VornCoordSysMainWindow::closeEvent(QCloseEvent* event) {
    if (saveButton->isEnabled()) {
        if (!VornMessageBox::information(this, QObject::tr("Warning"), tr("Data is changed!"))) {
            event->accept();
            return;
        }
        _onSave();
    }
    event->setAccepted(VornMessageBox::information(this, QObject::tr("information"),
                                                   QObject::tr("Do you want to exit program?")) != 0);
}
