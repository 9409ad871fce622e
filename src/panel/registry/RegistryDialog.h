#pragma once

#include "platform/desktop/Dialog.h"
#include "platform/projection/IEpsgRegistry.h"

#include <vector>

class ChoiceBox;
class ICoordSystem;
class IDictionary;
class IProjectionModule;
class NameSearch;
class PlaceSearch;
class QDialogButtonBox;
class QLabel;
class QTabWidget;
class QVBoxLayout;
class RegistryModel;
struct FoundSystem;

/// Chooses a projected system of the EPSG registry, and one of the registry's shifts from its datum to WGS 84. Where a
/// system is looked for by coordinates, one of the catalogue's own can be the answer.
class RegistryDialog : public Dialog {
    Q_OBJECT

public:
    /// Module and catalogue outlive the dialog; `catalogue` may be null.
    RegistryDialog(IProjectionModule& module, ICoordSystem* catalogue, QWidget* parent);

    /// Writes the chosen system with the chosen shift into `record`, and where it is from, but no name. False when none
    /// is chosen.
    bool write(IDictionary* record) const;

private Q_SLOTS:
    void _onSelectionChanged();
    void _onShiftChanged();
    void _onActivated();

private:
    void buildDetails(QVBoxLayout* layout);
    const FoundSystem* found() const;
    const RegistrySystem* registered() const;
    const RegistryShift* chosenShift() const;
    QStringList detailLines(const RegistrySystem& system, const QString& reason) const;
    void showShifts(const RegistrySystem* system);
    QByteArray source(const RegistrySystem& system) const;
    bool writeRegistered(const RegistrySystem& system, IDictionary* record) const;
    bool writeOwn(const FoundSystem& system, IDictionary* record) const;

    IProjectionModule& module;
    ICoordSystem* catalogue;
    RegistryModel* model;
    QTabWidget* pages;
    NameSearch* nameSearch;
    PlaceSearch* placeSearch;
    QLabel* detailsLabel;
    ChoiceBox* shiftBox;
    QDialogButtonBox* buttons;
    std::vector<RegistryShift> shifts; ///< of the selected system, as in `shiftBox` after its first entry
};
