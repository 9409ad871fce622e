#pragma once

#include "panel/ParamTab.h"

#include <QByteArray>

class ICoordSystem;
class MessageLine;
class QLabel;
class SearchBox;

/// The tab "Height": the geoid model of the system's heights.
class HeightTab : public ParamTab {
    Q_OBJECT

public:
    HeightTab(ICoordSystem* coordSystem, CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onListNeeded();
    void _onChosen(const QString& name);

private:
    ICoordSystem* coordSystem;
    SearchBox* geoidBox = nullptr;
    MessageLine* message = nullptr;
    QLabel* file = nullptr;
    MessageLine* fileMessage = nullptr;
    QLabel* ellipsoid = nullptr;
    QByteArray listedNames; ///< the catalogue's list as the box has it
};
