#include "geodesy/DlgGeoid.h"

#include "catalogue/CatalogueName.h"
#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/Path.h"
#include "geodesy/CustomCatalogue.h"

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

namespace {

CustomCatalogue::Kind geoidKind() {
    return {GeoidKey::name,
            GeoidKey::flag,
            &ICoordSystem::getGeoid,
            &ICoordSystem::addGeoid,
            &ICoordSystem::deleteGeoid,
            &ICoordSystem::saveGeoids,
            "Geoid_custom.xml",
            QObject::tr("Are you sure you want to delete geoid [%1]?"),
            QObject::tr("has same file name, whether or not covered?"),
            QObject::tr("new geoid name can't same with system name!")};
}

// What process_resolve_path() makes of these is the geoid data folder, and a file in it.
constexpr const char* dataFolder = "$(APP_DIR)/../etc/Vornhalde/data/GeoidData/";
constexpr const char* dataFile = "$(APP_DIR)/../etc/Vornhalde/data/GeoidData/%s";

/// One of the two paths above. Empty when it is too long.
QString resolved(const char* format, const QString& fileName) {
    char path[1000];
    process_resolve_path(path, sizeof path, format, fileName.toLocal8Bit().constData());
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
    nameCombo = CustomCatalogue::createNameBox();
    connect(nameCombo, SIGNAL(currentIndexChanged(int)), this, SLOT(_onIndexChanged(int)));

    auto* fileLabel = new QLabel(QObject::tr("File Path"));
    fileEdit = new QLineEdit;
    CustomCatalogue::setShownOnly(fileEdit);
    browseButton = new QPushButton(QObject::tr("Browser"));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(_onFileBrowserClicked()));

    auto* ellipsoidLabel = new QLabel(QObject::tr("Ellipsoid Name"));
    ellipsoidCombo = CustomCatalogue::createNameBox();
    CustomCatalogue::fillNames(ellipsoidCombo, coordSystem->getEllipsoidNames());

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

    if (mode != CustomCatalogue::ListMode) {
        browseButton->setEnabled(true);
        layout->addWidget(CustomCatalogue::createConfirmButtons(this), 0);
        return;
    }
    layout->addLayout(CustomCatalogue::createListButtons(this, addButton, editButton, deleteButton), 0);
}

void DlgGeoid::loadNames() {
    nameCombo->clear();
    CustomCatalogue::fillNames(nameCombo, coordSystem->getGeoidNames());
    CustomCatalogue::setNameMode(nameCombo, mode);
    if (mode == CustomCatalogue::ListMode) {
        browseButton->setEnabled(false);
        ellipsoidCombo->setEnabled(false);
    }
    if (mode == CustomCatalogue::AddMode)
        fileEdit->clear();
}

void DlgGeoid::_onIndexChanged(int /*index*/) {
    const IDictionary* geoid = coordSystem->getGeoid(nameCombo->currentText().toLocal8Bit().constData());
    if (!geoid)
        return;
    fileEdit->setText(CustomCatalogue::text(*geoid, GeoidKey::file));
    ellipsoidCombo->setCurrentIndex(ellipsoidCombo->findText(CustomCatalogue::text(*geoid, GeoidKey::ellipsoid)));
    if (mode == CustomCatalogue::ListMode) {
        const bool own = CustomCatalogue::isOwn(*geoid, GeoidKey::flag);
        editButton->setEnabled(own);
        deleteButton->setEnabled(own);
    }
}

void DlgGeoid::_onFileBrowserClicked() {
    const QString path = QFileDialog::getOpenFileName(this, QObject::tr("selete file"), resolved(dataFolder, QString()),
                                                      QObject::tr("Geiod File(*.ggf *.vgf)"));
    if (path.isEmpty())
        return;
    sourcePath = path;
    fileEdit->setText(QFileInfo(path).fileName());
}

void DlgGeoid::_onAdd() {
    DlgGeoid dialog(this, coordSystem, CustomCatalogue::AddMode);
    if (dialog.exec() == QDialog::Accepted)
        showAnew(CustomCatalogue::text(*dialog.record, GeoidKey::name));
}

void DlgGeoid::_onEdit() {
    const QString name = nameCombo->currentText();
    DlgGeoid dialog(this, coordSystem, CustomCatalogue::EditMode);
    CustomCatalogue::selectName(dialog.nameCombo, name);
    if (dialog.exec() == QDialog::Accepted)
        showAnew(name);
}

void DlgGeoid::showAnew(const QString& name) {
    loadNames();
    CustomCatalogue::selectName(nameCombo, name);
}

void DlgGeoid::_onDel() {
    if (CustomCatalogue::removeEntry(this, coordSystem, geoidKind(), nameCombo->currentText()))
        loadNames();
}

void DlgGeoid::accept() {
    const QString name = CustomCatalogue::enteredName(nameCombo, mode);
    const QString file = fileEdit->text();
    const QString ellipsoid = ellipsoidCombo->currentText();
    if (!isCatalogueName(name) || file.isEmpty() || ellipsoid.isEmpty()) {
        CustomCatalogue::refuseInput(this);
        return;
    }
    CustomCatalogue::confirm(this, coordSystem, geoidKind(), mode, record,
                             {{GeoidKey::name, name}, {GeoidKey::file, file}, {GeoidKey::ellipsoid, ellipsoid}},
                             [this] { copyModelFile(); });
}

void DlgGeoid::copyModelFile() {
    if (sourcePath.isEmpty())
        return;
    const QString destination = resolved(dataFile, QFileInfo(sourcePath).fileName());
    if (destination.isEmpty())
        return;
    // A model can have hundreds of megabytes. QFile::copy() replaces no file, and gives the new one its name when it is
    // whole.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QFile::copy(sourcePath, destination);
    QApplication::restoreOverrideCursor();
}
