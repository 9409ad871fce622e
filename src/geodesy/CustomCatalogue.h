#pragma once

#include <QString>

class IDictionary;
class ICoordSystem;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QLineEdit;
class QPushButton;

/// What the dialogs over the user's own ellipsoids and geoid models share.
namespace CustomCatalogue {

enum Mode {
    ListMode = 0,
    AddMode = 1,
    EditMode = 2,
};

/// The box that holds the names of the entries. Its width does not follow its longest name, which is the user's to
/// choose.
QComboBox* createNameBox();

/// Makes `edit` one that only shows, and lets it be seen.
void setShownOnly(QLineEdit* edit);

/// "Ok" and "Cancel", connected to the accept() and reject() slots of `dialog`.
QDialogButtonBox* createConfirmButtons(QDialog* dialog);

/// Fills `box` with `names`, joined by "," (null counts as empty), in the order given.
void fillNames(QComboBox* box, const char* names);

/// Makes the box of entry names what `mode` needs: selectable, typed into, or fixed.
void setNameMode(QComboBox* box, int mode);

/// Makes the first item whose text equals `name` exactly current; nothing happens when there is none.
void selectName(QComboBox* box, const QString& name);

/// The name that an add or edit dialog is about.
QString enteredName(const QComboBox* box, int mode);

/// False for an empty name and for one that holds ",", at which name lists are split.
bool isValidName(const QString& name);

/// The text of `key`, empty when the key is absent.
QString text(const IDictionary& record, const char* key);

void setText(IDictionary* record, const char* key, const QString& text);

/// Whether an entry is the user's own: its flag (`flagKey`), read as atoi() does, is 0. Without a flag it is a shipped
/// one.
bool isOwn(const IDictionary& record, const char* flagKey);

/// Calls one of the catalogue's save operations twice: with an empty path, then with that of `fileName` in the data
/// folder.
void save(ICoordSystem* coordSystem, void (ICoordSystem::*operation)(const char* path), const QString& fileName);

} // namespace CustomCatalogue
