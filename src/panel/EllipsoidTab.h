#pragma once

#include "panel/ParamTab.h"

#include <QByteArray>

class FieldEdit;
class FieldRow;
class ICoordSystem;
class MessageLine;
class SearchBox;

/// The tab "Ellipsoid": name, axis and flattening; the semi-minor axis and the eccentricity that follow from them.
class EllipsoidTab : public ParamTab {
    Q_OBJECT

public:
    EllipsoidTab(ICoordSystem* coordSystem, CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onListNeeded();
    void _onChosen(const QString& name);
    void _onEdited();

private:
    void showDerived();
    QString nameRemark() const;

    ICoordSystem* coordSystem;
    SearchBox* nameBox = nullptr;
    MessageLine* nameMessage = nullptr;
    FieldRow* semiMajorAxis = nullptr;
    FieldRow* inverseFlattening = nullptr;
    FieldEdit* semiMinorAxis = nullptr;
    FieldEdit* eccentricity = nullptr;
    QByteArray listedNames; ///< the catalogue's list as the box has it
};
