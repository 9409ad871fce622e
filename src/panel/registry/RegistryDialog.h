#pragma once

#include "platform/desktop/Dialog.h"
#include "platform/projection/IEpsgRegistry.h"

#include <vector>

class ChoiceBox;
class FieldEdit;
class MessageLine;
class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QTableView;
class QVBoxLayout;
class RegistryModel;

/// Chooses a projected system of the EPSG registry, and one of the registry's shifts from its datum to WGS 84.
class RegistryDialog : public Dialog {
    Q_OBJECT

public:
    /// `registry` outlives the dialog.
    RegistryDialog(IEpsgRegistry& registry, QWidget* parent);

    /// The chosen system with the chosen shift, as WKT 2 in UTF-8; empty before one is chosen.
    QByteArray wkt() const;

    /// The name of the chosen system's datum, in UTF-8; empty where the registry leaves the datum open.
    QByteArray datumName() const;

    /// Where the chosen system is from, for people to read: "EPSG:25832, EPSG v10.076, 2026-11-25" with the registry's
    /// edition and today's date.
    QByteArray source() const;

private Q_SLOTS:
    void _onSearchChanged();
    void _onSelectionChanged();
    void _onActivated();

private:
    void buildSearch(QVBoxLayout* layout);
    void buildTable(QVBoxLayout* layout);
    void buildDetails(QVBoxLayout* layout);
    const RegistrySystem* selected() const;
    void showDetails();

    IEpsgRegistry& registry;
    RegistryModel* model;
    QLineEdit* searchEdit;
    FieldEdit* latitudeEdit;
    FieldEdit* longitudeEdit;
    MessageLine* pointMessage;
    QCheckBox* deprecatedBox;
    QTableView* table;
    QLabel* countLabel;
    QLabel* detailsLabel;
    ChoiceBox* shiftBox;
    QDialogButtonBox* buttons;
    QByteArray shownCode;
    std::vector<RegistryShift> shifts; ///< of the selected system, as in `shiftBox` after its first entry
};
