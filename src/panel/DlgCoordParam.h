#pragma once

#include "panel/record/CoordParamEditor.h"

#include <QPointer>
#include <QTabWidget>
#include <QVector>

class ICoordSystem;
class IDictionary;
class ParamTab;
class QPushButton;
class SystemNameLine;

/// Shows and edits one coordinate system's parameter record. Takes no edits before it was given one.
class DlgCoordParam : public QTabWidget {
    Q_OBJECT

public:
    /// `readOnly` shows the record without letting the user edit it.
    DlgCoordParam(ICoordSystem* coordSystem, QWidget* parent, bool readOnly);
    ~DlgCoordParam() override;

    /// Shows a copy of `record`; from then on "Back to the values before" leads back to it. Never emits dataChanged().
    void setCoordParam(const IDictionary& record);

    /// The record as currently edited, owned by the panel. Unedited, it is exactly the record that was set: same keys,
    /// same texts, same numbers, unknown keys included.
    const IDictionary& getMetaData() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user changed a value.
    void dataChanged();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private Q_SLOTS:
    void _onRecordEdited();
    void _onAngleNotationChanged();
    void _onBack();
    void _onPageChanged();
    void _onFocusChanged(QWidget* old, QWidget* now);

private:
    void addHeader();
    void addParamTab(ParamTab* tab);
    void refreshTabs(const QObject* except);
    void showHeader();

    CoordParamEditor editor;
    QVector<ParamTab*> tabs;
    QWidget* header; ///< above the page in front: the system's name, and the way back
    SystemNameLine* nameLine;
    QPushButton* backButton;
    QPointer<QWidget> keyboardBefore; ///< what had the keyboard before what has it now
    bool readOnly;
    bool hasRecord = false;
};
