#pragma once

#include "panel/ParamTab.h"

#include <memory>

class AngleNotationBox;
class CheckPointPane;
class ComparePane;
class DistortionPane;
class ICoordSystem;
class LengthUnitBox;
class MessageLine;
class PointsPane;
class QTabWidget;
class ShownSystem;

/// The tab "Check": whether the system does what it should.
class CheckTab : public ParamTab {
    Q_OBJECT

public:
    /// `catalogue`, whose systems can be compared with, outlives the tab.
    CheckTab(ICoordSystem* catalogue, CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onNotationChosen();
    void _onUnitChosen();
    void _onPageChanged();
    void _onProposalAccepted();
    void _onFitAccepted();
    void _onCatalogueWanted();
    void _onRegistryWanted();

private:
    ICoordSystem* catalogue;
    std::shared_ptr<const ShownSystem> system;
    MessageLine* problemLine = nullptr;
    AngleNotationBox* notationBox = nullptr;
    LengthUnitBox* unitBox = nullptr;
    QTabWidget* pages = nullptr;
    CheckPointPane* pointPane = nullptr;
    DistortionPane* distortionPane = nullptr;
    PointsPane* pointsPane = nullptr;
    ComparePane* comparePane = nullptr;
};
