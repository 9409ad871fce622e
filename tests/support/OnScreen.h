#pragma once

#include "support/Script.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QLineEdit;
class QPushButton;

/// A window as its user sees it: what is visible, by its name on the screen, and a hand that types. Scripts know,
/// beside the words that the window adds:
///   done: "Name=text" types into that field, or chooses in that box, if its list has the text;
///         "Name" presses that button or turns to that tab; "@Name" goes to it;
///         "+text" types on where the keyboard is, "^text" pastes over all there, "<Esc>" is a key
///   seen: "Name=text" is what it shows, "(missing)" without such a thing; "state:Name" is "grey" or not, ...
class OnScreen : public Script {
public:
    OnScreen();
    ~OnScreen() override;

    void open(QWidget& opened);

    template <typename Widget> QList<Widget*> findAll() const {
        QList<Widget*> visible;
        for (Widget* widget : window->findChildren<Widget*>()) {
            if (widget->isVisible())
                visible << widget;
        }
        return visible;
    }

    /// A visible widget by its accessible name, its text, if it is a button, or the label beside it; null when there is
    /// none.
    template <typename Widget> Widget* find(const QString& name) const {
        for (Widget* widget : findAll<Widget>()) {
            if (nameOf(widget) == name)
                return widget;
        }
        return qobject_cast<Widget*>(labelled(name));
    }

    QLineEdit* field(const QString& name) const;
    QPushButton* button(const QString& text) const;

    QString shown(const QString& name) const;

    /// Replaces the text of a field, or of a box, by typing.
    void type(const QString& name, const QString& typed) const;

    void choose(const QString& box, int index) const;

    /// Every message, the problem first; none that a greyed form does not show.
    QStringList messages() const;

    bool isRed() const;

protected:
    void act(const QString& word, const QString& text) override;
    QString see(const QString& what) override;

    bool turnTo(const QString& tab) const;

    QWidget* window = nullptr;

private:
    template <typename Widget, typename Give> void addSight(const QString& word, Give give);

    static QString nameOf(const QWidget* widget);

    /// What the visible label with this text belongs to or stands beside; null when there is none.
    QWidget* labelled(const QString& text) const;

    int measured = 0;
};
