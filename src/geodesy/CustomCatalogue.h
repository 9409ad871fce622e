#pragma once

#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

class IDictionary;
class ICoordSystem;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;

/// What the dialogs over the user's own ellipsoids and geoid models share.
namespace CustomCatalogue {

enum Mode {
    ListMode = 0,
    AddMode = 1,
    EditMode = 2,
};

/// One of the catalogue's two lists: how it is read and changed, and what its dialog says about it.
struct Kind {
    const char* nameKey;
    const char* flagKey;
    IDictionary* (ICoordSystem::*get)(const char* name);
    void (ICoordSystem::*add)(IDictionary* record);
    void (ICoordSystem::*remove)(const char* name);
    void (ICoordSystem::*save)(const char* path);
    const char* fileName;   ///< of the user's own entries, in the data folder
    QString deleteQuestion; ///< "%1" stands for the name
    QString coverQuestion;  ///< when the name of a new entry is that of an own one
    QString shippedMessage; ///< when it is that of a shipped one
};

/// The values of an entry in their order, its name first: key and text.
using Values = QVector<QPair<const char*, QString>>;

/// The box that holds the names of the entries. Its width does not follow its longest name, which is the user's to
/// choose.
QComboBox* createNameBox();

/// Makes `edit` one that only shows, and lets it be seen.
void setShownOnly(QLineEdit* edit);

/// "Ok" and "Cancel", connected to the accept() and reject() slots of `dialog`.
QDialogButtonBox* createConfirmButtons(QDialog* dialog);

/// A row of "Add", "Edit" and "Delete", connected to the _onAdd(), _onEdit() and _onDel() slots of `dialog`.
QHBoxLayout* createListButtons(QDialog* dialog, QPushButton*& add, QPushButton*& edit, QPushButton*& remove);

/// Fills `box` with `names`, joined by "," (null counts as empty), in the order given.
void fillNames(QComboBox* box, const char* names);

/// Makes the box of entry names what `mode` needs: selectable, typed into, or fixed.
void setNameMode(QComboBox* box, int mode);

/// Makes the first item whose text equals `name` exactly current; nothing happens when there is none.
void selectName(QComboBox* box, const QString& name);

/// The name that an add or edit dialog is about.
QString enteredName(const QComboBox* box, int mode);

/// The text of `key`, empty when the key is absent.
QString text(const IDictionary& record, const char* key);

/// Whether an entry is the user's own: its flag (`flagKey`), read as atoi() does, is 0. Without a flag it is a shipped
/// one.
bool isOwn(const IDictionary& record, const char* flagKey);

/// Says that the input is refused.
void refuseInput(QDialog* dialog);

/// What accept() does once the input has passed its checks: makes the entry's record and the `result` of `dialog`, asks
/// about a name that is taken in add mode, calls `beforeAdding`, adds, saves and closes the dialog as accepted. When
/// the user declines or the name is a shipped entry's, the dialog stays open.
void confirm(QDialog* dialog, ICoordSystem* coordSystem, const Kind& kind, int mode, IDictionary* result,
             const Values& values, const std::function<void()>& beforeAdding);

/// Asks, deletes the entry and saves. False when there is no name or the user declined.
bool removeEntry(QDialog* dialog, ICoordSystem* coordSystem, const Kind& kind, const QString& name);

} // namespace CustomCatalogue
