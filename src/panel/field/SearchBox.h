#pragma once

#include <QComboBox>

class QSortFilterProxyModel;

/// A list of names in which typing searches: names that hold every typed word are offered, whatever the case. A name
/// that is not in the list can be shown, but only listed ones can be chosen; any other text gives way to the shown name
/// when the user leaves, or presses Escape. A box that takes any text leaves the typed one to its owner.
class SearchBox : public QComboBox {
    Q_OBJECT

public:
    explicit SearchBox(QWidget* parent = nullptr);

    void setReadOnly(bool on);

    /// What is typed stands as it is: it need not be a listed name.
    void setTakesAnyText() { takesAnyText = true; }

    /// The names to choose from.
    void setNames(const QStringList& names);

    /// Shows a name, listed or not.
    void setShownName(const QString& name);
    QString shownName() const { return shown; }

    void showPopup() override;

Q_SIGNALS:
    /// The list is about to be searched or opened: the time to bring it up to date.
    void listNeeded();

    /// The user chose a listed name.
    void chosen(const QString& name);

    /// Where any text is taken: the user pressed Escape, or went on to something else in the window.
    void cancelled();
    void left();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private Q_SLOTS:
    void _onTextEdited(const QString& text);
    void _onActivated(int index);

private:
    void choose(const QString& name);

    QSortFilterProxyModel* filter;
    QString shown;
    bool readOnly = false;
    bool takesAnyText = false;
};
