#pragma once

#include "platform/desktop/Dialog.h"

class ICoordSystem;
class IDictionary;
class QComboBox;
class QLineEdit;
class QPushButton;

/// Shows the ellipsoids of the catalogue and keeps the user's own ones. In list mode it shows and deletes; its "Add"
/// and "Edit" run a second dialog of this class, in add or edit mode, for one ellipsoid. Every change is saved at once.
class DlgEllipsoid : public Dialog {
    Q_OBJECT

public:
    /// `mode` is a CustomCatalogue::Mode. The catalogue stays the caller's.
    DlgEllipsoid(QWidget* parent, ICoordSystem* coordSystem, int mode);
    ~DlgEllipsoid() override;

private Q_SLOTS:
    void _onAdd();
    void _onEdit();
    void _onDel();
    void _onIndexChanged(int index);
    void accept() override;

private:
    void initUi();
    void loadNames();
    /// Fills the list again and makes `name` current.
    void showAnew(const QString& name);

    QComboBox* nameCombo = nullptr;
    QLineEdit* aEdit = nullptr;       ///< semi-major axis in metres
    QLineEdit* fEdit = nullptr;       ///< inverse flattening
    QPushButton* addButton = nullptr; ///< this and the next two in list mode only
    QPushButton* editButton = nullptr;
    QPushButton* deleteButton = nullptr;
    ICoordSystem* coordSystem;
    int mode;
    IDictionary* record; ///< after an Ok its "ellipsoid_name" is the confirmed name
};
