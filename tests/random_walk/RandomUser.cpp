#include "RandomUser.h"

#include "ToolOnScreen.h"
#include "app/VornCoordSysMainWindow.h"
#include "panel/DlgCoordParam.h"
#include "panel/field/SearchBox.h"
#include "panel/registry/RegistryDialog.h"
#include "tree/DlgCoordSysGroups.h"
#include "tree/DlgInputName.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>

namespace {

constexpr int mostTurns = 16; ///< then everything is closed

QString textOf(const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && !button->text().isEmpty()   ? button->text()
           : !widget->accessibleName().isEmpty() ? widget->accessibleName()
           : !widget->objectName().isEmpty()     ? widget->objectName()
                                                 : QString(widget->metaObject()->className());
}

QString quoted(const QString& text) {
    return '"' + QString(text).replace('\n', "\\n").replace(QChar(0), "\\0").left(60) + '"';
}

} // namespace

RandomUser::RandomUser(ToolOnScreen& tool, quint32 seed, const QString& folder) : tool(tool), input(seed, folder) {
    connect(&eyes, SIGNAL(timeout()), this, SLOT(_onLook()));
}

const QVector<RandomUser::Action>& RandomUser::actions() {
    static const QVector<Action> all{
        {"click tree", 24, &RandomUser::clickTree},
        {"tree keys", 3, &RandomUser::pressTreeKeys},
        {"tree menu", 9, &RandomUser::openTreeMenu},
        {"add", 4, &RandomUser::add},
        {"save", 2, &RandomUser::save},
        {"close", 1, &RandomUser::close},
        {"type", 28, &RandomUser::typeIntoField},
        {"tab", 10, &RandomUser::chooseTab},
        {"box", 8, &RandomUser::chooseInBox},
        {"button", 4, &RandomUser::pressPanelButton},
        {"move", 4, &RandomUser::moveOverPanel},
        {"keys", 3, &RandomUser::pressKeysAnywhere},
        {"click", 2, &RandomUser::clickAnywhere},
        {"resize", 1, &RandomUser::resizeWindow},
        {"looks", 1, &RandomUser::changeLooks},
    };
    return all;
}

void RandomUser::step() {
    static const int weights = std::accumulate(actions().begin(), actions().end(), 0,
                                               [](int sum, const Action& action) { return sum + action.weight; });
    deeds.clear();
    turns = 0;
    eyes.start(0);
    QApplication::setActiveWindow(tool.window.get());
    int chosen = input.pick(weights);
    const auto action =
        std::find_if(actions().begin(), actions().end(), [&](const Action& one) { return (chosen -= one.weight) < 0; });
    note(action->name);
    (this->*action->act)();
    // A list that opened is no dialog: it does not wait.
    while (QWidget* popup = QApplication::activePopupWidget())
        use(popup);
    eyes.stop();
    QApplication::processEvents();
    if (!tool.window->isVisible()) {
        note("start");
        tool.start();
    }
}

/// A new dialog or menu waits in an event loop of its own, until what is done here closes it.
void RandomUser::_onLook() {
    QWidget* top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (!top || !top->isVisible() || inUse.contains(top) || qobject_cast<QProgressDialog*>(top))
        return;
    inUse.insert(top);
    connect(top, &QObject::destroyed, this, [this, top] { inUse.remove(top); });
    // In its own turn of the event loop: what is done may open another one.
    QTimer::singleShot(0, top, [this, top = QPointer<QWidget>(top)] {
        if (top->isVisible())
            use(top);
        inUse.remove(top);
    });
}

void RandomUser::use(QWidget* top) {
    auto* const dialog = qobject_cast<QDialog*>(top);
    if (++turns > mostTurns && input.pick(3) > 0) {
        note("give up");
        if (dialog)
            dialog->reject();
        else
            top->close();
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

void RandomUser::useMenu(QMenu* menu) {
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

void RandomUser::useFileDialog(QFileDialog* dialog) {
    if (input.oneIn(6)) {
        note("no file");
        return dialog->reject();
    }
    QStringList files;
    const bool isTree = dialog->fileMode() == QFileDialog::ExistingFiles;
    for (int i = isTree ? 1 + input.pick(3) : 1; i > 0; --i)
        files << (dialog->acceptMode() == QFileDialog::AcceptSave ? input.targetFile()
                  : isTree                                        ? input.wktFile()
                                                                  : input.modelFile());
    for (const QString& file : qAsConst(files))
        note(QFileInfo(file).fileName());
    dialog->findChild<QLineEdit*>("fileNameEdit")
        ->setText(files.size() == 1 ? files.first() : '"' + files.join("\" \"") + '"');
    QMetaObject::invokeMethod(dialog, "accept");
}

void RandomUser::useDialog(QDialog* dialog) {
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
        press(dialog,
              input.anyOf(QVector<int>{Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Space}));
    } else if (!buttons.isEmpty()) {
        QPushButton* const button = input.anyOf(buttons);
        note("press " + button->text());
        button->click();
    }
    while (QWidget* popup = QApplication::activePopupWidget())
        use(popup);
}

/// All that is asked for, as a person with a plan does it.
void RandomUser::fillIn(QDialog* dialog) {
    for (QLineEdit* edit : usable<QLineEdit>(dialog)) {
        note("fill in " + textOf(edit));
        edit->setText(textFor(edit));
    }
    for (const char* text : {"Browser", "OK", "Ok"}) {
        for (QPushButton* button : usable<QPushButton>(dialog)) {
            if (button->text() == text || button->text() == QString('&') + text) {
                note("press " + button->text());
                button->click();
            }
        }
    }
}

void RandomUser::useList(QWidget* popup) {
    auto* view = qobject_cast<QAbstractItemView*>(popup);
    if (!view)
        view = popup->findChild<QAbstractItemView*>();
    QWidget* const target = view ? view : popup;
    for (int i = input.pick(12); i > 0; --i)
        QTest::keyClick(target, input.oneIn(4) ? Qt::Key_Up : Qt::Key_Down);
    press(target, input.anyOf(QVector<int>{Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}));
    if (popup->isVisible() && input.oneIn(2))
        popup->hide();
}

QTreeWidgetItem* RandomUser::anyItem(int level) {
    const auto items = tool.items(level);
    return items.isEmpty() ? tool.tree->topLevelItem(0) : input.anyOf(items);
}

template <class Widget> QList<Widget*> RandomUser::usable(const QWidget* parent) const {
    QList<Widget*> all = parent->findChildren<Widget*>();
    const auto isUseless = [](const Widget* widget) {
        const auto* edit = qobject_cast<const QLineEdit*>(widget);
        return !widget->isVisible() || !widget->isEnabled() || (edit && edit->isReadOnly());
    };
    all.erase(std::remove_if(all.begin(), all.end(), isUseless), all.end());
    return all;
}

void RandomUser::clickItem(QTreeWidgetItem* item, Qt::MouseButton button) {
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

void RandomUser::press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers) {
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

QString RandomUser::textFor(const QLineEdit* edit) {
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
void RandomUser::type(QLineEdit* edit) {
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
    switch (input.pick(6)) {
    case 0:
        return press(edit, Qt::Key_Return);
    case 1:
        return press(edit, Qt::Key_Tab);
    case 2:
        return press(edit, Qt::Key_Escape);
    case 3:
        if (input.oneIn(4))
            return press(edit, Qt::Key_Z, Qt::ControlModifier);
    }
}

void RandomUser::clickTree() {
    clickItem(anyItem(input.oneIn(8) ? input.pick(2) : 2), Qt::LeftButton);
}

void RandomUser::pressTreeKeys() {
    tool.tree->setFocus();
    for (int i = 1 + input.pick(4); i > 0; --i)
        press(tool.tree, input.anyOf(QVector<int>{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,
                                                  Qt::Key_End, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Space}));
}

void RandomUser::openTreeMenu() {
    clickItem(anyItem(input.pick(3)), Qt::RightButton);
}

void RandomUser::add() {
    tool.addButton->click();
}

void RandomUser::save() {
    tool.saveButton->click();
}

void RandomUser::close() {
    if (input.oneIn(2))
        tool.exitButton->click();
    else
        tool.window->close();
}

void RandomUser::typeIntoField() {
    const auto edits = usable<QLineEdit>(tool.panel);
    if (edits.isEmpty())
        return chooseTab();
    type(input.anyOf(edits));
}

void RandomUser::chooseTab() {
    auto* bars = tool.panel->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    const auto pages = usable<QTabWidget>(tool.panel);
    if (!pages.isEmpty() && input.oneIn(2))
        bars = pages.first()->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    const int index = input.pick(bars->count());
    note(bars->tabText(index));
    QTest::mouseClick(bars, Qt::LeftButton, {}, bars->tabRect(index).center());
}

void RandomUser::chooseInBox() {
    const auto boxes = usable<QComboBox>(tool.panel);
    if (boxes.isEmpty())
        return chooseTab();
    QComboBox* const box = input.anyOf(boxes);
    note(textOf(box));
    box->setFocus();
    box->showPopup();
}

void RandomUser::pressPanelButton() {
    auto buttons = usable<QAbstractButton>(tool.panel);
    const auto isPartOfBar = [](const QAbstractButton* button) { return button->inherits("QToolButton"); };
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(), isPartOfBar), buttons.end());
    if (buttons.isEmpty())
        return chooseTab();
    QAbstractButton* const button = input.anyOf(buttons);
    note(textOf(button));
    button->click();
}

void RandomUser::moveOverPanel() {
    QWidget* const window = tool.window.get();
    for (int i = 1 + input.pick(4); i > 0; --i) {
        const QPoint place(input.pick(window->width()), input.pick(window->height()));
        QWidget* const below = window->childAt(place);
        if (!below)
            continue;
        const QPoint local = below->mapFrom(window, place);
        note("over " + textOf(below));
        switch (input.pick(4)) {
        case 0: {
            QWheelEvent wheel(local, window->mapToGlobal(place), QPoint(), QPoint(0, input.oneIn(2) ? 120 : -120), {},
                              {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(below, &wheel);
            break;
        }
        case 1: {
            QHelpEvent help(QEvent::ToolTip, local, window->mapToGlobal(place));
            QApplication::sendEvent(below, &help);
            break;
        }
        case 2: {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(below, &leave);
            break;
        }
        default: {
            QMouseEvent move(QEvent::MouseMove, local, window->mapToGlobal(place), Qt::NoButton, {}, {});
            QApplication::sendEvent(below, &move);
        }
        }
    }
}

void RandomUser::pressKeysAnywhere() {
    const QVector<int> keys{Qt::Key_Tab,    Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space,
                            Qt::Key_Escape, Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,
                            Qt::Key_Delete, Qt::Key_F4,  Qt::Key_PageUp,  Qt::Key_End};
    for (int i = 1 + input.pick(5); i > 0 && tool.window->isVisible(); --i) {
        QWidget* const popup = QApplication::activePopupWidget();
        if (popup)
            return use(popup);
        press(tool.window.get(), input.anyOf(keys));
    }
}

void RandomUser::clickAnywhere() {
    QWidget* const window = tool.window.get();
    const QPoint place(input.pick(window->width()), input.pick(window->height()));
    QWidget* const below = window->childAt(place);
    if (!below || !below->isEnabled())
        return;
    note("click " + textOf(below));
    QTest::mouseClick(below, input.oneIn(5) ? Qt::RightButton : Qt::LeftButton, {}, below->mapFrom(window, place));
}

void RandomUser::resizeWindow() {
    tool.window->resize(800 + input.pick(800), 600 + input.pick(500));
    QApplication::processEvents();
}

void RandomUser::changeLooks() {
    switch (input.pick(5)) {
    case 0: {
        const QString style = input.anyOf(QStringList{"fusion", "windows"});
        note(style);
        QApplication::setStyle(style);
        break;
    }
    case 1: {
        note("font");
        QFont font = QApplication::font();
        font.setPointSize(7 + input.pick(12));
        QApplication::setFont(font);
        break;
    }
    case 2: {
        note("palette");
        QPalette palette = QApplication::style()->standardPalette();
        if (input.oneIn(2))
            palette = QPalette(QColor(40, 40, 40), QColor(30, 30, 30));
        QApplication::setPalette(palette);
        break;
    }
    case 3: {
        note("direction");
        QApplication::setLayoutDirection(input.oneIn(3) ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    }
    default: {
        note("language");
        QEvent language(QEvent::LanguageChange), locale(QEvent::LocaleChange);
        QApplication::sendEvent(tool.window.get(), &language);
        QApplication::sendEvent(tool.window.get(), &locale);
    }
    }
}
