#pragma once

#include "platform/desktop/Dialog.h"

class ICoordSystem;
class QLineEdit;

/// Asks for the name of a group or a coordinate system, and refuses an empty name, one that the lists of names can't
/// hold, and one that the catalogue already holds at that place. It changes nothing itself.
///
/// The tree has one such dialog. Each command prepares it anew: title, the three members, the field's text; then
/// exec().
class DlgInputName : public Dialog {
    Q_OBJECT

public:
    DlgInputName(QWidget* parent, ICoordSystem* coordSystem);

    /// The field's text exactly as typed.
    QString getName() const;

    QLineEdit* nameEdit;
    ICoordSystem* coordSystem;
    QString groupName; ///< the group in which a coordinate system's name must be new
    QString coordName;
    int nameType = 0; ///< 0: a group's name; otherwise a coordinate system's

private Q_SLOTS:
    void accept() override;

private:
    /// Why the name is refused; null when it passes.
    QString refusal(const QString& name) const;
};
