#pragma once

#include "OddInput.h"
#include "ToolOnScreen.h"
#include "panel/field/SearchBox.h"
#include "panel/registry/RegistryDialog.h"
#include "tree/DlgInputName.h"

#include <QSet>
#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <functional>

/// A person without a plan: each step does one thing to the window, and whatever it opens is used until it closes.
/// The same seed does the same things.
class RandomUser {
public:
    RandomUser(ToolOnScreen& itsTool, quint32 seed, const QString& folder) : tool(itsTool), input(seed, folder) {
        QObject::connect(&eyes, &QTimer::timeout, [this] { look(); });
    }

    void step() {
        deeds.clear();
        turns = 0;
        eyes.start(0);
        QApplication::setActiveWindow(tool.window.get());
        int weights = 0;
        for (const Action& action : actions)
            weights += action.weight;
        int chosen = input.pick(weights);
        const auto action =
            std::find_if(actions.begin(), actions.end(), [&](const Action& one) { return (chosen -= one.weight) < 0; });
        note(action->name);
        action->act();
        // A list that opened is no dialog: it does not wait.
        usePopups();
        eyes.stop();
        QApplication::processEvents();
        if (!tool.window->isVisible()) {
            note("start");
            tool.start();
        }
    }

    /// What the last step did, in order.
    QString did() const { return deeds.join(", "); }

private:
    struct Action {
        const char* name;
        int weight;
        std::function<void()> act;
    };

    const QVector<Action> actions{
        {"click tree", 24, [this] { clickItem(anyItem(input.oneIn(8) ? input.pick(2) : 2), Qt::LeftButton); }},
        {"tree keys", 3,
         [this] {
             tool.tree->setFocus();
             for (int i = 1 + input.pick(4); i > 0; --i)
                 press(tool.tree, anyKey({Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,
                                          Qt::Key_End, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Space}));
         }},
        {"tree menu", 9, [this] { clickItem(anyItem(input.pick(3)), Qt::RightButton); }},
        {"add", 4, [this] { tool.addButton->click(); }},
        {"save", 2, [this] { tool.saveButton->click(); }},
        {"close", 1, [this] { input.oneIn(2) ? tool.exitButton->click() : void(tool.window->close()); }},
        {"type", 28,
         [this] {
             const auto edits = usable<QLineEdit>(tool.panel);
             edits.isEmpty() ? chooseTab() : type(input.anyOf(edits));
         }},
        {"tab", 10, [this] { chooseTab(); }},
        {"box", 8, [this] { chooseInBox(); }},
        {"button", 4, [this] { pressPanelButton(); }},
        {"move", 4,
         [this] {
             for (int i = 1 + input.pick(4); i > 0; --i)
                 moveOver(anyPlace());
         }},
        {"keys", 3, [this] { pressKeysAnywhere(); }},
        {"click", 2, [this] { clickAnywhere(); }},
        {"resize", 1,
         [this] {
             tool.window->resize(800 + input.pick(800), 600 + input.pick(500));
             QApplication::processEvents();
         }},
        {"looks", 1, [this] { changeLooks(); }},
    };

    void note(const QString& deed) { deeds << deed; }

    static QString textOf(const QWidget* widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        for (const QString& text :
             {button ? button->text() : QString(), widget->accessibleName(), widget->objectName()}) {
            if (!text.isEmpty())
                return text;
        }
        return widget->metaObject()->className();
    }

    static QString quoted(const QString& text) {
        return '"' + QString(text).replace('\n', "\\n").replace(QChar(0), "\\0").left(60) + '"';
    }

    int anyKey(const QVector<int>& keys) { return input.anyOf(keys); }

    QPoint anyPlace() { return QPoint(input.pick(tool.window->width()), input.pick(tool.window->height())); }

    QTreeWidgetItem* anyItem(int level) {
        const auto items = tool.items(level);
        return items.isEmpty() ? tool.tree->topLevelItem(0) : input.anyOf(items);
    }

    template <class Widget> QList<Widget*> usable(const QWidget* parent) const {
        QList<Widget*> all;
        for (Widget* widget : parent->findChildren<Widget*>()) {
            const auto* edit = qobject_cast<const QLineEdit*>(widget);
            if (widget->isVisible() && widget->isEnabled() && !(edit && edit->isReadOnly()))
                all << widget;
        }
        return all;
    }

    /// A new dialog or menu waits in an event loop of its own, until what is done here closes it.
    void look() {
        QWidget* top = QApplication::activePopupWidget();
        if (!top)
            top = QApplication::activeModalWidget();
        if (!top || !top->isVisible() || inUse.contains(top) || qobject_cast<QProgressDialog*>(top))
            return;
        inUse.insert(top);
        QObject::connect(top, &QObject::destroyed, &eyes, [this, top] { inUse.remove(top); });
        // In its own turn of the event loop: what is done may open another one.
        QTimer::singleShot(0, top, [this, top = QPointer<QWidget>(top)] {
            if (top->isVisible())
                use(top);
            inUse.remove(top);
        });
    }

    void usePopups() {
        while (QWidget* popup = QApplication::activePopupWidget())
            use(popup);
    }

    void use(QWidget* top) {
        constexpr int mostTurns = 16; // then everything is closed
        auto* const dialog = qobject_cast<QDialog*>(top);
        if (++turns > mostTurns && input.pick(3) > 0) {
            note("give up");
            dialog ? dialog->reject() : void(top->close());
        } else if (auto* const menu = qobject_cast<QMenu*>(top)) {
            useMenu(menu);
        } else if (auto* const fileDialog = qobject_cast<QFileDialog*>(top)) {
            useFileDialog(fileDialog);
        } else if (dialog) {
            useDialog(dialog);
        } else {
            useList(top);
        }
    }

    void useMenu(QMenu* menu) {
        QAction* action = menu->actions().isEmpty() ? nullptr : input.anyOf(menu->actions());
        if (tool.items(2).size() > 40 && input.oneIn(3))
            action = menu->actions().last(); // to delete; what is imported must not pile up
        if (!action || input.oneIn(10))
            return press(menu, Qt::Key_Escape);
        note(action->text());
        menu->setActiveAction(action);
        press(menu, Qt::Key_Return);
        if (menu->isVisible())
            menu->close(); // a disabled entry
    }

    void useFileDialog(QFileDialog* dialog) {
        if (input.oneIn(6)) {
            note("no file");
            return dialog->reject();
        }
        QStringList files;
        const bool isTree = dialog->fileMode() == QFileDialog::ExistingFiles;
        for (int i = isTree ? 1 + input.pick(3) : 1; i > 0; --i) {
            files << (dialog->acceptMode() == QFileDialog::AcceptSave ? input.targetFile()
                      : isTree                                        ? input.wktFile()
                                                                      : input.modelFile());
            note(QFileInfo(files.last()).fileName());
        }
        dialog->findChild<QLineEdit*>("fileNameEdit")
            ->setText(files.size() == 1 ? files.first() : '"' + files.join("\" \"") + '"');
        QMetaObject::invokeMethod(dialog, "accept");
    }

    void useDialog(QDialog* dialog) {
        const auto edits = usable<QLineEdit>(dialog);
        const auto buttons = usable<QPushButton>(dialog);
        const auto boxes = usable<QComboBox>(dialog);
        const auto tables = usable<QTableView>(dialog);
        const int what = input.pick(10);
        if (what < 4 && !edits.isEmpty()) {
            type(input.anyOf(edits));
        } else if (what < 5 && !boxes.isEmpty()) {
            QComboBox* const box = input.anyOf(boxes);
            if (box->count() > 0) {
                box->setCurrentIndex(input.pick(box->count()));
                note("choose " + quoted(box->currentText()));
            }
        } else if (what < 6 && !tables.isEmpty() && tables.first()->model()->rowCount() > 0) {
            QTableView* const table = tables.first();
            const QModelIndex index = table->model()->index(input.pick(std::min(40, table->model()->rowCount())), 0);
            note("row " + index.data().toString());
            table->scrollTo(index);
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
            if (input.oneIn(4))
                QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
        } else if (what == 7) {
            fillIn(dialog);
        } else if (what == 6) {
            press(dialog, anyKey({Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Space}));
        } else if (!buttons.isEmpty()) {
            push(input.anyOf(buttons));
        }
        usePopups();
    }

    void push(QPushButton* button) {
        note("press " + button->text());
        button->click();
    }

    /// All that is asked for, as a person with a plan does it.
    void fillIn(QDialog* dialog) {
        for (QLineEdit* edit : usable<QLineEdit>(dialog)) {
            note("fill in " + textOf(edit));
            edit->setText(textFor(edit));
        }
        for (const QString text : {"Browser", "OK", "Ok"}) {
            for (QPushButton* button : usable<QPushButton>(dialog)) {
                if (button->text() == text || button->text() == '&' + text)
                    push(button);
            }
        }
    }

    void useList(QWidget* popup) {
        auto* view = qobject_cast<QAbstractItemView*>(popup);
        if (!view)
            view = popup->findChild<QAbstractItemView*>();
        QWidget* const target = view ? view : popup;
        for (int i = input.pick(12); i > 0; --i)
            QTest::keyClick(target, input.oneIn(4) ? Qt::Key_Up : Qt::Key_Down);
        press(target, anyKey({Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}));
        if (popup->isVisible() && input.oneIn(2))
            popup->hide();
    }

    void clickItem(QTreeWidgetItem* item, Qt::MouseButton button) {
        note(QString(button == Qt::RightButton ? "menu of " : "click ") + quoted(item->text(0)));
        tool.tree->scrollToItem(item);
        QWidget* const viewport = tool.tree->viewport();
        const QPoint place = tool.tree->visualItemRect(item).intersected(viewport->rect()).center();
        QTest::mousePress(viewport, button, {}, place);
        if (button == Qt::RightButton) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
            QApplication::sendEvent(viewport, &event);
            if (!tool.window->isVisible())
                return;
        }
        QTest::mouseRelease(viewport, button, {}, place);
    }

    void press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        note("key " + QKeySequence(key).toString());
        // An open list has the keyboard.
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            auto* const view = popup->findChild<QAbstractItemView*>();
            widget = view ? view : popup;
        }
        QWidget* const focus = widget->focusWidget();
        QTest::keyClick(focus && widget->isAncestorOf(focus) && focus->isVisible() ? focus : widget, Qt::Key(key),
                        modifiers);
    }

    QString textFor(const QLineEdit* edit) {
        if (input.oneIn(25))
            return input.oneIn(2) ? input.name() : input.number();
        const QWidget* const window = edit->window();
        if (qobject_cast<const SearchBox*>(edit->parentWidget()))
            return input.ellipsoidName();
        if (qobject_cast<const DlgInputName*>(window) || qobject_cast<const QComboBox*>(edit->parentWidget()))
            return input.name();
        if (qobject_cast<const RegistryDialog*>(window) && edit->accessibleName() == "Search")
            return input.searchText();
        return input.number();
    }

    /// Types, or pastes what has no keys.
    void type(QLineEdit* edit) {
        const QString text = textFor(edit);
        note("type " + quoted(text) + " into " + textOf(edit));
        edit->setFocus();
        if (input.oneIn(5))
            edit->setCursorPosition(input.pick(edit->text().size() + 1)); // into the middle of what stands there
        else
            edit->selectAll();
        const bool hasKeys = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= ' ' && c < QChar(0x7f); });
        if (text.isEmpty())
            QTest::keyClick(edit, input.oneIn(2) ? Qt::Key_Delete : Qt::Key_Backspace);
        else if (hasKeys && text.size() < 30 && !input.oneIn(4))
            QTest::keyClicks(edit, text);
        else {
            QApplication::clipboard()->setText(text);
            edit->paste();
        }
        const int next = input.pick(6);
        if (next < 3)
            press(edit, QVector<int>{Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape}[next]);
        else if (next == 3 && input.oneIn(4))
            press(edit, Qt::Key_Z, Qt::ControlModifier);
    }

    void chooseTab() {
        auto* bars = tool.panel->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        const auto pages = usable<QTabWidget>(tool.panel);
        if (!pages.isEmpty() && input.oneIn(2))
            bars = pages.first()->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        const int index = input.pick(bars->count());
        note(bars->tabText(index));
        QTest::mouseClick(bars, Qt::LeftButton, {}, bars->tabRect(index).center());
    }

    void chooseInBox() {
        const auto boxes = usable<QComboBox>(tool.panel);
        if (boxes.isEmpty())
            return chooseTab();
        QComboBox* const box = input.anyOf(boxes);
        note(textOf(box));
        box->setFocus();
        box->showPopup();
    }

    void pressPanelButton() {
        QList<QAbstractButton*> buttons;
        for (QAbstractButton* button : usable<QAbstractButton>(tool.panel)) {
            if (!button->inherits("QToolButton")) // part of a bar
                buttons << button;
        }
        if (buttons.isEmpty())
            return chooseTab();
        QAbstractButton* const button = input.anyOf(buttons);
        note(textOf(button));
        button->click();
    }

    void moveOver(const QPoint& place) {
        QWidget* const below = tool.window->childAt(place);
        if (!below)
            return;
        const QPoint local = below->mapFrom(tool.window.get(), place), global = tool.window->mapToGlobal(place);
        note("over " + textOf(below));
        const auto send = [below](auto event) { QApplication::sendEvent(below, &event); };
        switch (input.pick(4)) {
        case 0:
            return send(QWheelEvent(local, global, QPoint(), QPoint(0, input.oneIn(2) ? 120 : -120), {}, {},
                                    Qt::NoScrollPhase, false));
        case 1:
            return send(QHelpEvent(QEvent::ToolTip, local, global));
        case 2:
            return send(QEvent(QEvent::Leave));
        default:
            send(QMouseEvent(QEvent::MouseMove, local, global, Qt::NoButton, {}, {}));
        }
    }

    void pressKeysAnywhere() {
        for (int i = 1 + input.pick(5); i > 0 && tool.window->isVisible(); --i) {
            if (QWidget* const popup = QApplication::activePopupWidget())
                return use(popup);
            press(tool.window.get(), anyKey({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space,
                                             Qt::Key_Escape, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,
                                             Qt::Key_Delete, Qt::Key_F4, Qt::Key_PageUp, Qt::Key_End}));
        }
    }

    void clickAnywhere() {
        const QPoint place = anyPlace();
        QWidget* const below = tool.window->childAt(place);
        if (!below || !below->isEnabled())
            return;
        note("click " + textOf(below));
        QTest::mouseClick(below, input.oneIn(5) ? Qt::RightButton : Qt::LeftButton, {},
                          below->mapFrom(tool.window.get(), place));
    }

    void changeLooks() {
        const int what = input.pick(5);
        const QString style = what == 0 ? input.anyOf(QStringList{"fusion", "windows"}) : QString();
        note(QStringList{style, "font", "palette", "direction", "language"}[what]);
        if (what == 0) {
            QApplication::setStyle(style);
        } else if (what == 1) {
            QFont font = QApplication::font();
            font.setPointSize(7 + input.pick(12));
            QApplication::setFont(font);
        } else if (what == 2) {
            const QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
            QApplication::setPalette(input.oneIn(2) ? dark : QApplication::style()->standardPalette());
        } else if (what == 3) {
            QApplication::setLayoutDirection(input.oneIn(3) ? Qt::RightToLeft : Qt::LeftToRight);
        } else {
            for (const auto type : {QEvent::LanguageChange, QEvent::LocaleChange}) {
                QEvent event(type);
                QApplication::sendEvent(tool.window.get(), &event);
            }
        }
    }

    ToolOnScreen& tool;
    OddInput input;
    QTimer eyes; ///< sees what opens
    QSet<QWidget*> inUse;
    int turns = 0; ///< in dialogs and popups, in this step
    QStringList deeds;
};
