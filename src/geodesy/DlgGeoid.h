#pragma once

#include "platform/desktop/Dialog.h"

#include <QString>

class ICoordSystem;
class IDictionary;
class QComboBox;
class QLineEdit;
class QPushButton;

/// Shows the geoid models of the catalogue and keeps the user's own ones. In list mode it shows and deletes; its "Add"
/// and "Edit" run a second dialog of this class, in add or edit mode, for one entry. Every change is saved at once; the
/// model file that an entry names is copied into the geoid data folder, never over a file that is there.
class DlgGeoid : public Dialog {
    Q_OBJECT

public:
    /// `mode` is a CustomCatalogue::Mode. The catalogue stays the caller's.
    DlgGeoid(QWidget* parent, ICoordSystem* coordSystem, int mode);
    ~DlgGeoid() override;

private Q_SLOTS:
    void _onAdd();
    void _onEdit();
    void _onDel();
    void _onIndexChanged(int index);
    void _onFileBrowserClicked();
    void accept() override;

private:
    void initUi();
    void loadNames();
    /// Fills the list again and makes `name` current.
    void showAnew(const QString& name);
    void copyModelFile();

    QComboBox* nameCombo = nullptr;
    QComboBox* ellipsoidCombo = nullptr;
    QLineEdit* fileEdit = nullptr; ///< bare name of the model file
    QPushButton* browseButton = nullptr;
    QPushButton* addButton = nullptr; ///< this and the next two in list mode only
    QPushButton* editButton = nullptr;
    QPushButton* deleteButton = nullptr;
    ICoordSystem* coordSystem;
    int mode;
    IDictionary* record; ///< after an Ok its "geoid_name" is the confirmed name
    QString sourcePath;  ///< the model file chosen in this dialog, empty when none was
};
