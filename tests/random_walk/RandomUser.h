#pragma once

#include "OddInput.h"

#include <QObject>
#include <QSet>
#include <QTimer>

class QDialog;
class QFileDialog;
class QLineEdit;
class QMenu;
class QTreeWidgetItem;
class ToolOnScreen;

/// A person without a plan: each step does one thing to the window, and whatever it opens is used until it closes.
/// The same seed does the same things.
class RandomUser : public QObject {
    Q_OBJECT

public:
    RandomUser(ToolOnScreen& tool, quint32 seed, const QString& folder);

    void step();

    /// What the last step did, in order.
    QString did() const { return deeds.join(", "); }

private Q_SLOTS:
    void _onLook();

private:
    struct Action {
        const char* name;
        int weight;
        void (RandomUser::*act)();
    };
    static const QVector<Action>& actions();

    void note(const QString& deed) { deeds << deed; }

    void clickTree();
    void pressTreeKeys();
    void openTreeMenu();
    void add();
    void save();
    void close();
    void typeIntoField();
    void chooseTab();
    void chooseInBox();
    void pressPanelButton();
    void moveOverPanel();
    void pressKeysAnywhere();
    void clickAnywhere();
    void resizeWindow();
    void changeLooks();

    void use(QWidget* top);
    void useMenu(QMenu* menu);
    void useFileDialog(QFileDialog* dialog);
    void useDialog(QDialog* dialog);
    void fillIn(QDialog* dialog);
    void useList(QWidget* popup);

    QTreeWidgetItem* anyItem(int level);
    template <class Widget> QList<Widget*> usable(const QWidget* parent) const;
    void clickItem(QTreeWidgetItem* item, Qt::MouseButton button);
    void type(QLineEdit* edit);
    QString textFor(const QLineEdit* edit);
    void press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    ToolOnScreen& tool;
    OddInput input;
    QTimer eyes; ///< sees what opens
    QSet<QWidget*> inUse;
    int turns = 0; ///< in dialogs and popups, in this step
    QStringList deeds;
};
