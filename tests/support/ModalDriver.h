#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QDialog;
class QMenu;

/// Runs real modal dialogs and menus without a person: what is queued here is done when the next one has opened.
namespace ModalDriver {

/// When a dialog that is not yet being driven becomes the active modal widget, `act` is called with it once. A
/// dialog that a failed test leaves open is closed.
void onNextDialog(const std::function<void(QDialog*)>& act);

/// When a menu pops up, its entries go to `entries` and its place on the screen to `place` (if not null), and the entry
/// with the text `choose` is triggered; an empty text closes the menu.
void onNextMenu(const QString& choose, QStringList* entries = nullptr, QPoint* place = nullptr);

/// How many of the queued actions have not come to their turn.
int pending();

} // namespace ModalDriver
