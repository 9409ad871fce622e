#include "support/ModalDriver.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QTest>
#include <QTimer>

namespace {

int waiting = 0;

// Polls until `act` could do its work; a test that never opens what it queued for ends by its own time limit.
void whenever(const std::function<bool()>& act) {
    ++waiting;
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        timer->stop();
        if (act()) {
            --waiting;
            timer->deleteLater();
        } else {
            timer->start(1);
        }
    });
    timer->start(0);
}

QSet<QWidget*>& driven() {
    static QSet<QWidget*> dialogs;
    return dialogs;
}

} // namespace

void ModalDriver::onNextDialog(const std::function<void(QDialog*)>& act) {
    whenever([act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || driven().contains(dialog))
            return false;
        driven().insert(dialog);
        const auto forget = [dialog] { driven().remove(dialog); };
        QObject::connect(dialog, &QDialog::finished, forget);
        QObject::connect(dialog, &QObject::destroyed, forget); // the next one may stand at the same address
        // Its own turn of the event loop: what is done may run nested dialogs, which other actions drive.
        QTimer::singleShot(0, dialog, [act, dialog = QPointer<QDialog>(dialog)] {
            act(dialog);
            if (QTest::currentTestFailed() && dialog && dialog->isVisible())
                dialog->done(QDialog::Rejected); // or the test would wait for ever
        });
        return true;
    });
}

void ModalDriver::onNextMenu(const QString& choose, QStringList* entries, QPoint* place) {
    whenever([choose, entries, place] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return false;
        if (place)
            *place = menu->pos();
        QAction* chosen = nullptr;
        for (QAction* action : menu->actions()) {
            if (entries)
                entries->append(action->text());
            if (action->text() == choose)
                chosen = action;
        }
        menu->close();
        if (chosen)
            QTimer::singleShot(0, chosen, [chosen] { chosen->trigger(); });
        return true;
    });
}

int ModalDriver::pending() {
    return waiting;
}
