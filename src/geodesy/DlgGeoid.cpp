#include "geodesy/DlgGeoid.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/Path.h"
#include "geodesy/CustomCatalogue.h"
#include "platform/desktop/VornMessageBox.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace CustomCatalogue;

namespace {

/// The path of `fileName` in the geoid data folder, or the folder itself for an empty name. Empty when it is too long.
QString geoidDataPath(const QString& fileName) {
    char path[1000];
    process_resolve_path(path, sizeof path, "$(APP_DIR)/../etc/Vornhalde/data/GeoidData/%s",
                         fileName.toLocal8Bit().constData());
    return QString::fromLocal8Bit(path);
}

} // namespace

DlgGeoid::DlgGeoid(QWidget* parent, ICoordSystem* coordSystem, int mode)
    : Dialog(parent), coordSystem(coordSystem), mode(mode), record(dictionary_get_instance(0)) {
    setMinimumSize(400, 160);
    setWindowTitle(QObject::tr("New Geoid"));
    initUi();
    loadNames();
}

DlgGeoid::~DlgGeoid() {
    dictionary_release_instance(&record);
}

void DlgGeoid::initUi() {
    auto* nameLabel = new QLabel(QObject::tr("Geoid Name"));
    nameCombo = createNameBox();
    connect(nameCombo, SIGNAL(currentIndexChanged(int)), this, SLOT(_onIndexChanged(int)));

    auto* fileLabel = new QLabel(QObject::tr("File Path"));
    fileEdit = new QLineEdit;
    setShownOnly(fileEdit);
    browseButton = new QPushButton(QObject::tr("Browser"));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(_onFileBrowserClicked()));

    auto* ellipsoidLabel = new QLabel(QObject::tr("Ellipsoid Name"));
    ellipsoidCombo = createNameBox();
    fillNames(ellipsoidCombo, coordSystem->getEllipsoidNames());

    nameLabel->setBuddy(nameCombo);
    fileLabel->setBuddy(fileEdit);
    ellipsoidLabel->setBuddy(ellipsoidCombo);

    auto* grid = new QGridLayout;
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(nameCombo, 0, 1);
    grid->addWidget(fileLabel, 1, 0);
    grid->addWidget(fileEdit, 1, 1);
    grid->addWidget(browseButton, 1, 2);
    grid->addWidget(ellipsoidLabel, 2, 0);
    grid->addWidget(ellipsoidCombo, 2, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid, 0);

    if (mode != ListMode) {
        browseButton->setEnabled(true);
        layout->addWidget(createConfirmButtons(this), 0);
        return;
    }
    addButton = new QPushButton(QObject::tr("Add"));
    editButton = new QPushButton(QObject::tr("Edit"));
    deleteButton = new QPushButton(QObject::tr("Delete"));
    connect(addButton, SIGNAL(clicked()), this, SLOT(_onAdd()));
    connect(editButton, SIGNAL(clicked()), this, SLOT(_onEdit()));
    connect(deleteButton, SIGNAL(clicked()), this, SLOT(_onDel()));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(editButton);
    buttons->addWidget(deleteButton);
    layout->addLayout(buttons, 0);
}

void DlgGeoid::loadNames() {
    nameCombo->clear();
    fillNames(nameCombo, coordSystem->getGeoidNames());
    setNameMode(nameCombo, mode);
    if (mode == ListMode) {
        browseButton->setEnabled(false);
        ellipsoidCombo->setEnabled(false);
    }
    if (mode == AddMode || nameCombo->count() == 0)
        fileEdit->clear();
}

void DlgGeoid::save() {
    CustomCatalogue::save(coordSystem, &ICoordSystem::saveGeoids, "Geoid_custom.xml");
}

void DlgGeoid::_onIndexChanged(int /*index*/) {
    const IDictionary* geoid = coordSystem->getGeoid(nameCombo->currentText().toLocal8Bit().constData());
    if (!geoid)
        return;
    fileEdit->setText(text(*geoid, GeoidKey::file));
    ellipsoidCombo->setCurrentIndex(ellipsoidCombo->findText(text(*geoid, GeoidKey::ellipsoid)));
    if (mode == ListMode) {
        const bool own = isOwn(*geoid, GeoidKey::flag);
        editButton->setEnabled(own);
        deleteButton->setEnabled(own);
    }
}

void DlgGeoid::_onFileBrowserClicked() {
    const QString path = QFileDialog::getOpenFileName(this, QObject::tr("selete file"), geoidDataPath(QString()),
                                                      QObject::tr("Geiod File(*.ggf *.vgf)"));
    if (path.isEmpty())
        return;
    sourcePath = path;
    fileEdit->setText(QFileInfo(path).fileName());
}

void DlgGeoid::_onAdd() {
    DlgGeoid dialog(this, coordSystem, AddMode);
    if (dialog.exec() != QDialog::Accepted)
        return;
    loadNames();
    selectName(nameCombo, text(*dialog.record, GeoidKey::name));
}

void DlgGeoid::_onEdit() {
    const QString name = nameCombo->currentText();
    DlgGeoid dialog(this, coordSystem, EditMode);
    selectName(dialog.nameCombo, name);
    if (dialog.exec() != QDialog::Accepted)
        return;
    loadNames();
    selectName(nameCombo, name);
}

void DlgGeoid::_onDel() {
    const QString name = nameCombo->currentText();
    if (name.isEmpty())
        return;
    const QString question = QObject::tr("Are you sure you want to delete geoid [%1]?").arg(name);
    if (!VornMessageBox::information(this, QObject::tr("Warning"), question))
        return;
    coordSystem->deleteGeoid(name.toLocal8Bit().constData());
    save();
    loadNames();
}

void DlgGeoid::accept() {
    const QString name = enteredName(nameCombo, mode);
    const QString file = fileEdit->text();
    const QString ellipsoid = ellipsoidCombo->currentText();
    if (!isValidName(name) || file.isEmpty() || ellipsoid.isEmpty()) {
        VornMessageBox::information_ok(this, QObject::tr("information"), QObject::tr("please input correct param!"));
        return;
    }

    const DictionaryGuard geoid;
    setText(geoid.get(), GeoidKey::name, name);
    setText(geoid.get(), GeoidKey::file, file);
    setText(geoid.get(), GeoidKey::ellipsoid, ellipsoid);
    setText(record, GeoidKey::name, name);
    setText(geoid.get(), GeoidKey::flag, "0");

    if (mode == AddMode && !isNewNameFree(name))
        return;
    copyModelFile();
    coordSystem->addGeoid(geoid.get());
    save();
    QDialog::accept();
}

bool DlgGeoid::isNewNameFree(const QString& name) {
    const IDictionary* existing = coordSystem->getGeoid(name.toLocal8Bit().constData());
    if (!existing)
        return true;
    if (isOwn(*existing, GeoidKey::flag))
        return VornMessageBox::information(this, QObject::tr("Warning"),
                                           QObject::tr("has same file name, whether or not covered?"));
    VornMessageBox::information_ok(this, QObject::tr("Warning"),
                                   QObject::tr("new geoid name can't same with system name!"));
    return false;
}

void DlgGeoid::copyModelFile() {
    if (sourcePath.isEmpty())
        return;
    const QString destination = geoidDataPath(QFileInfo(sourcePath).fileName());
    if (destination.isEmpty())
        return;
    // A model can have hundreds of megabytes. QFile::copy() replaces no file, and gives the new one its name when it is
    // whole.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QFile::copy(sourcePath, destination);
    QApplication::restoreOverrideCursor();
}
