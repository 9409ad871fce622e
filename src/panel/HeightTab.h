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
    void showRecord() override;

private Q_SLOTS:
    void _onListNeeded();
    void _onChosen(const QString& name);

private:
    ICoordSystem* coordSystem;
    SearchBox* geoidBox;
    MessageLine* message;
    QLabel* file;
    MessageLine* fileMessage;
    QLabel* ellipsoid;
    QByteArray listedNames; ///< the catalogue's list as the box has it
};
