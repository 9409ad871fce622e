#include "support/OnScreen.h"

#include "panel/field/MessageLine.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

namespace {

QWidget* besideIt(const QLabel* label) {
    auto* grid = qobject_cast<QGridLayout*>(label->parentWidget()->layout());
    int row = 0, column = 0, rows = 0, columns = 0;
    if (grid)
        grid->getItemPosition(grid->indexOf(const_cast<QLabel*>(label)), &row, &column, &rows, &columns);
    QLayoutItem* const item = grid ? grid->itemAtPosition(row, column + 1) : nullptr;
    return item ? item->widget() : nullptr;
}

QLineEdit* inputOf(QWidget* widget) {
    auto* box = qobject_cast<QComboBox*>(widget);
    return box ? box->lineEdit() : qobject_cast<QLineEdit*>(widget);
}

} // namespace

OnScreen::OnScreen() = default;
OnScreen::~OnScreen() = default;

template <typename Widget, typename Give> void OnScreen::addSight(const QString& word, Give give) {
    sights[word] = [this, give](const QString& name) -> QString {
        const auto* widget = find<Widget>(name);
        return widget ? QString(give(widget)) : "(missing)";
    };
}

void OnScreen::open(QWidget& opened) {
    window = &opened;
    window->show();
    QApplication::setActiveWindow(window);
    acts["open"] = [this](const QString& box) {
        find<QComboBox>(box)->showPopup();
        find<QComboBox>(box)->hidePopup();
        QApplication::setActiveWindow(window);
    };
    acts["measure"] = [this](const QString& name) { measured = find<QWidget>(name)->width(); };
    acts["wait for"] = [this](const QString& name) { QTRY_VERIFY(find<QWidget>(name)); };
    sights["says"] = [this](const QString&) { return messages().join(" / "); };
    sights["keyboard"] = [](const QString&) { return nameOf(QApplication::focusWidget()); };
    sights["copied"] = [](const QString&) { return QApplication::clipboard()->text(); };
    sights["red"] = [this](const QString&) { return isRed() ? "yes" : "no"; };
    addSight<QWidget>("tip", [](const QWidget* widget) { return widget->toolTip(); });
    addSight<QWidget>("description", [](const QWidget* widget) { return widget->accessibleDescription(); });
    addSight<QWidget>("as wide", [this](const QWidget* widget) { return widget->width() == measured ? "yes" : "no"; });
    addSight<QWidget>("state", [](const QWidget* widget) {
        return !widget->isEnabled() ? "grey" : widget->property("readOnly").toBool() ? "read-only" : "enabled";
    });
    addSight<QComboBox>("listed", [](const QComboBox* box) { return QString::number(box->count()); });
    addSight<QComboBox>("found", [](const QComboBox* box) -> QString {
        const QCompleter* search = box->completer();
        return search->popup()->isVisible() ? QString::number(search->completionModel()->rowCount()) : "closed";
    });
    addSight<QComboBox>("greyed", [](const QComboBox* box) {
        QStringList items;
        for (int i = 0; i < box->count(); ++i) {
            if (!(box->model()->flags(box->model()->index(i, 0)) & Qt::ItemIsEnabled))
                items << box->itemText(i);
        }
        return items.join(", ");
    });
}

QLineEdit* OnScreen::field(const QString& name) const {
    return find<QLineEdit>(name);
}

QPushButton* OnScreen::button(const QString& text) const {
    return find<QPushButton>(text);
}

QString OnScreen::shown(const QString& name) const {
    const auto* widget = find<QWidget>(name);
    const auto* box = qobject_cast<const QComboBox*>(widget);
    return box      ? box->currentText()
           : widget ? widget->property(qobject_cast<const QPlainTextEdit*>(widget) ? "plainText" : "text").toString()
                    : "(missing)";
}

void OnScreen::type(const QString& name, const QString& typed) const {
    auto* widget = find<QWidget>(name);
    QVERIFY2(widget && inputOf(widget), qPrintable("No field " + name));
    widget->setFocus();
    inputOf(widget)->selectAll();
    if (typed.isEmpty())
        QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, typed);
}

void OnScreen::choose(const QString& box, int index) const {
    auto* combo = find<QComboBox>(box);
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}

QStringList OnScreen::messages() const {
    QStringList texts;
    for (const MessageLine* line : findAll<MessageLine>()) {
        if (!line->text().isEmpty() && line->isEnabled())
            texts << line->text();
    }
    return texts;
}

bool OnScreen::isRed() const {
    const QImage picture = window->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.red() > colour.green() + 20)
                return true;
        }
    }
    return false;
}

void OnScreen::act(const QString& word, const QString& text) {
    QWidget* const keyboard = QApplication::focusWidget();
    const QString rest = word.mid(1);
    QVERIFY(keyboard || !QString("<+^").contains(word[0]));
    auto* box = find<QComboBox>(word);
    if (acts.contains(word)) {
        acts[word](text);
        QApplication::processEvents();
        return;
    }
    if (word.startsWith('<')) {
        QTest::keyClick(QApplication::activePopupWidget() ? QApplication::activePopupWidget() : keyboard,
                        Qt::Key(QKeySequence(rest.chopped(1))[0]));
    } else if (word.startsWith('@')) {
        QVERIFY2(find<QWidget>(rest), qPrintable("No " + rest));
        find<QWidget>(rest)->setFocus();
    } else if (word.startsWith('+')) {
        QTest::keyClicks(keyboard, rest);
    } else if (word.startsWith('^')) {
        QApplication::clipboard()->setText(rest);
        inputOf(keyboard)->selectAll();
        inputOf(keyboard)->paste();
    } else if (text.isNull() && turnTo(word)) {
    } else if (auto* spin = find<QDoubleSpinBox>(word)) {
        spin->setValue(text.toDouble());
    } else if (box && box->findText(text) >= 0) {
        choose(word, box->findText(text));
    } else if (auto* pressed = find<QAbstractButton>(word)) {
        QTest::mouseClick(pressed, Qt::LeftButton, {}, {8, pressed->height() / 2}); // on a check mark, too
    } else {
        type(word, text);
    }
    QApplication::processEvents();
    if (!QApplication::activePopupWidget())
        QApplication::setActiveWindow(window); // a desktop does so when a popup is gone
}

QString OnScreen::see(const QString& what) {
    return sights.contains(what.section(':', 0, 0)) ? Script::see(what) : shown(what);
}

bool OnScreen::turnTo(const QString& tab) const {
    for (auto* bar : findAll<QTabBar>()) {
        for (int i = 0; i < bar->count(); ++i) {
            if (bar->tabText(i) == tab) {
                bar->setCurrentIndex(i);
                return true;
            }
        }
    }
    return false;
}

QString OnScreen::nameOf(const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button ? button->text() : widget->accessibleName();
}

QWidget* OnScreen::labelled(const QString& text) const {
    for (const QLabel* label : findAll<QLabel>()) {
        if (label->text() == text)
            return label->buddy() ? label->buddy() : besideIt(label);
    }
    return nullptr;
}
