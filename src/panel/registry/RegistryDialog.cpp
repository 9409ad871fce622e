#include "panel/registry/RegistryDialog.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "import/WktToCoordParam.h"
#include "panel/computing/SystemSearch.h"
#include "panel/field/ChoiceBox.h"
#include "panel/record/PanelText.h"
#include "panel/registry/FoundSystemsModel.h"
#include "panel/registry/NameSearch.h"
#include "panel/registry/PlaceSearch.h"
#include "panel/registry/RegistryModel.h"
#include "platform/projection/IProjectionModule.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QString shiftText(const RegistryShift& shift) {
    const QString name = QString::fromUtf8(shift.name);
    return shift.accuracy < 0.0 ? name : PanelText::tr("%1, accuracy %2 m").arg(name).arg(shift.accuracy);
}

} // namespace

RegistryDialog::RegistryDialog(IProjectionModule& module, ICoordSystem* catalogue, QWidget* parent)
    : Dialog(parent), module(module), catalogue(catalogue), model(new RegistryModel(module.registry(), this)) {
    setWindowTitle(PanelText::tr("From registry"));
    auto* layout = new QVBoxLayout(this);
    pages = new QTabWidget;
    nameSearch = new NameSearch(*model);
    placeSearch = new PlaceSearch(module, catalogue, *model);
    pages->addTab(nameSearch, PanelText::tr("By name or code"));
    pages->addTab(placeSearch, PanelText::tr("From coordinates"));
    layout->addWidget(pages, 1);
    buildDetails(layout);
    resize(800, 640);
    for (QWidget* page : {static_cast<QWidget*>(nameSearch), static_cast<QWidget*>(placeSearch)}) {
        connect(page, SIGNAL(selectionChanged()), this, SLOT(_onSelectionChanged()));
        connect(page, SIGNAL(activated()), this, SLOT(_onActivated()));
    }
    connect(pages, SIGNAL(currentChanged(int)), this, SLOT(_onSelectionChanged()));
    connect(shiftBox, SIGNAL(currentIndexChanged(int)), this, SLOT(_onShiftChanged()));
    _onSelectionChanged();
    nameSearch->setFocus();
}

void RegistryDialog::buildDetails(QVBoxLayout* layout) {
    detailsLabel = new QLabel;
    detailsLabel->setWordWrap(true);
    detailsLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    detailsLabel->setMinimumHeight(detailsLabel->fontMetrics().lineSpacing() * 4);
    shiftBox = new ChoiceBox;
    shiftBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* shiftLabel = new QLabel(PanelText::tr("Datum shift to WGS 84"));
    shiftLabel->setBuddy(shiftBox);
    auto* row = new QHBoxLayout;
    row->addWidget(shiftLabel);
    row->addWidget(shiftBox, 1);
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(PanelText::tr("Take over"));
    layout->addWidget(detailsLabel);
    layout->addLayout(row);
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

const FoundSystem* RegistryDialog::found() const {
    return pages->currentWidget() == placeSearch ? placeSearch->selected() : nullptr;
}

const RegistrySystem* RegistryDialog::registered() const {
    if (pages->currentWidget() == nameSearch)
        return nameSearch->selected();
    const FoundSystem* const system = found();
    return system ? system->registered : nullptr;
}

const RegistryShift* RegistryDialog::chosenShift() const {
    const int index = shiftBox->currentIndex() - 1;
    return index < 0 || index >= int(shifts.size()) ? nullptr : &shifts[std::size_t(index)];
}

bool RegistryDialog::write(IDictionary* record) const {
    const RegistrySystem* const system = registered();
    if (system)
        return writeRegistered(*system, record);
    return found() && writeOwn(*found(), record);
}

bool RegistryDialog::writeRegistered(const RegistrySystem& system, IDictionary* record) const {
    if (!WktToCoordParam::write(module.registry().wkt(system.code, chosenShift()), record))
        return false;
    record->remove(CoordParamKey::name);
    const auto set = [&](const char* key, const QByteArray& text) {
        if (!text.isEmpty())
            record->setText(key, QString::fromUtf8(text).toLocal8Bit().constData());
    };
    set(CoordParamKey::datumName, module.registry().datumName(system.code));
    set(CoordParamKey::source, source(system));
    return true;
}

/// Where the system is from, for people to read: "EPSG:25832, EPSG v10.076, 2026-11-25" with the registry's edition and
/// today's date.
QByteArray RegistryDialog::source(const RegistrySystem& system) const {
    const QByteArray today = QDate::currentDate().toString(Qt::ISODate).toUtf8();
    return "EPSG:" + system.code + ", " + module.registry().edition() + ", " + today;
}

bool RegistryDialog::writeOwn(const FoundSystem& system, IDictionary* record) const {
    ICoordSysGroup* const group = catalogue->getGroup(system.group.constData());
    const IDictionary* const own = group ? group->getCoordSystem(system.name.constData()) : nullptr;
    if (!own)
        return false;
    dictionary_assign(record, own);
    record->remove(CoordParamKey::name);
    record->remove(CoordParamKey::remark);
    if (!own->getValue(CoordParamKey::source))
        record->setText(CoordParamKey::source, (system.group + " / " + system.name).constData());
    return true;
}

void RegistryDialog::_onSelectionChanged() {
    const RegistrySystem* const system = registered();
    const QString reason = system ? model->reason(*system) : QString();
    showShifts(system && reason.isEmpty() ? system : nullptr);
    QPushButton* const takeOver = buttons->button(QDialogButtonBox::Ok);
    takeOver->setEnabled((system || found()) && reason.isEmpty());
    takeOver->setToolTip(found() && !system
                             ? PanelText::tr("Copies this system's ellipsoid, projection, datum shift and "
                                             "geoid model; name and remark stay.")
                             : QString());
    _onShiftChanged();
}

void RegistryDialog::showShifts(const RegistrySystem* system) {
    shifts = system ? module.registry().datumShifts(system->code) : std::vector<RegistryShift>();
    const QSignalBlocker blocker(shiftBox);
    shiftBox->clear();
    shiftBox->addItem(found() && !found()->registered ? PanelText::tr("As in the catalogue") : PanelText::tr("None"));
    for (const RegistryShift& shift : shifts) {
        shiftBox->addItem(shiftText(shift));
        shiftBox->setItemData(shiftBox->count() - 1, QString::fromUtf8(shift.area), Qt::ToolTipRole);
    }
    shiftBox->setCurrentIndex(shifts.empty() ? 0 : 1);
    shiftBox->setEnabled(!shifts.empty());
}

void RegistryDialog::_onShiftChanged() {
    QStringList lines;
    if (found())
        lines.append(placeSearch->description(chosenShift()));
    if (const RegistrySystem* const system = registered())
        lines.append(detailLines(*system, model->reason(*system)));
    else if (found())
        lines.append(PanelText::tr("Of the own catalogue: %1").arg(FoundSystemsModel::nameOf(*found())));
    detailsLabel->setText(lines.join('\n'));
    detailsLabel->setToolTip(lines.isEmpty() ? QString() : lines.last());
}

QStringList RegistryDialog::detailLines(const RegistrySystem& system, const QString& reason) const {
    QStringList lines{QString::fromUtf8(system.method) + (reason.isEmpty() ? QString() : QStringLiteral(" \u2013 ")) +
                      reason};
    const QString unit = QString::fromUtf8(module.registry().unitName(system.code));
    if (unit != "metre")
        lines.append(PanelText::tr("The registry counts in %1, the record in metres.").arg(unit));
    lines.append(QString::fromUtf8(system.area));
    return lines;
}

void RegistryDialog::_onActivated() {
    if (buttons->button(QDialogButtonBox::Ok)->isEnabled())
        accept();
}
