#pragma once

#include <QWidget>

class CoordParamEditor;
class IDictionary;

/// One tab of the parameter panel: shows one side of the record and edits it in place.
///
/// Nothing of a tab is built or computed before it comes to the front: a start, and a click in the tree, cost what is
/// seen.
/// A tab changes the record through editor() and then calls recordChanged(); the panel tells the other tabs and the
/// window. Texts of tabs are translated in the panel's context: PanelText::tr().
class ParamTab : public QWidget {
    Q_OBJECT

public:
    /// `editor` outlives the tab.
    ParamTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    /// The text on the tab, translated.
    virtual QString title() const = 0;

    /// The tab is about to come to the front: builds it, the first time.
    void prepare();

    /// The record, or the way in which angles are shown, changed elsewhere: shows it anew, now when the tab is visible,
    /// else when it comes to the front.
    void refresh();

Q_SIGNALS:
    /// The user changed the record on this tab.
    void recordEdited();

    /// The user chose the other way of showing angles on this tab.
    void angleNotationChanged();

protected:
    /// Makes the tab's widgets. Called once, before the tab first comes to the front.
    virtual void build() = 0;

    /// Shows the whole record in the tab's widgets. Never changes it.
    virtual void showRecord() = 0;

    /// Tells the panel that the user changed the record on this tab.
    void recordChanged() { Q_EMIT recordEdited(); }

    CoordParamEditor& editor() const { return paramEditor; }
    const IDictionary& record() const;
    bool isReadOnly() const { return readOnly; }

    void showEvent(QShowEvent* event) override;

private:
    void keepInTabOrder();

    CoordParamEditor& paramEditor;
    bool readOnly;
    bool stale = true;
    bool isBuilt = false;
};
