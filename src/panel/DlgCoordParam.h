#pragma once

#include "panel/record/CoordParamEditor.h"

#include <QTabWidget>
#include <QVector>

class ICoordSystem;
class IDictionary;
class ParamTab;
class SystemNameLine;

/// Shows and edits one coordinate system's parameter record.
class DlgCoordParam : public QTabWidget {
    Q_OBJECT

public:
    /// `readOnly` shows the record without letting the user edit it.
    DlgCoordParam(ICoordSystem* coordSystem, QWidget* parent, bool readOnly);
    ~DlgCoordParam() override;

    /// Shows a copy of `record`. Never emits dataChanged().
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

private Q_SLOTS:
    void _onRecordEdited();
    void _onAngleNotationChanged();

private:
    void addParamTab(ParamTab* tab);
    void refreshTabs(const QObject* except);
    void showName();

    CoordParamEditor editor;
    QVector<ParamTab*> tabs;
    QVector<SystemNameLine*> nameLines; ///< one for each tab
};
