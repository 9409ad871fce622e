#pragma once

#include "panel/ParamTab.h"

#include <memory>

class AngleNotationBox;
class CheckPointPane;
class DistortionPane;
class LengthUnitBox;
class MessageLine;
class PointsPane;
class QTabWidget;
class ShownSystem;

/// The tab "Check": whether the system does what it should.
///
/// Nothing is built or computed before the tab is first shown.
class CheckTab : public ParamTab {
    Q_OBJECT

public:
    CheckTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void showRecord() override;

private Q_SLOTS:
    void _onNotationChosen();
    void _onUnitChosen();
    void _onPageChanged();
    void _onProposalAccepted();
    void _onFitAccepted();

private:
    void build();

    std::shared_ptr<const ShownSystem> system;
    MessageLine* problemLine = nullptr;
    AngleNotationBox* notationBox = nullptr;
    LengthUnitBox* unitBox = nullptr;
    QTabWidget* pages = nullptr;
    CheckPointPane* pointPane = nullptr;
    DistortionPane* distortionPane = nullptr;
    PointsPane* pointsPane = nullptr;
};
