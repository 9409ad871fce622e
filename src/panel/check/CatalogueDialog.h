#pragma once

#include "platform/desktop/Dialog.h"

class ICoordSystem;
class IDictionary;
class QDialogButtonBox;
class QLineEdit;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;

/// Chooses a system of the catalogue: all groups' systems, and a search that narrows them down.
class CatalogueDialog : public Dialog {
    Q_OBJECT

public:
    /// Lists what `catalogue` has now.
    CatalogueDialog(ICoordSystem& catalogue, QWidget* parent);

    /// Makes `record` a copy of the chosen system's. False when none is chosen or the catalogue has it no more.
    bool write(IDictionary* record) const;

    /// "UTM zone 32N, in WGS 84": the chosen system, the name first where space is short; empty when none is chosen.
    QString systemName() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void _onSearchChanged(const QString& text);
    void _onSelectionChanged();
    void _onActivated();

private:
    enum Column { Group, Name, ColumnCount };

    void listSystems();
    QString chosen(Column column) const;

    ICoordSystem& catalogue;
    QStandardItemModel* systems;
    QSortFilterProxyModel* found;
    QLineEdit* searchEdit;
    QTableView* table;
    QDialogButtonBox* buttons;
};
