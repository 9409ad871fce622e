#pragma once

#include "panel/ParamTab.h"

#include <QVector>

class AngleNotationBox;
class ChoiceBox;
class FieldRow;
class MessageLine;
class QGridLayout;
struct ProjectionFields;

/// The tab "Projection": the method and the fields of that method.
class ProjectionTab : public ParamTab {
    Q_OBJECT

public:
    ProjectionTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onMethodActivated(int index);
    void _onNotationChosen();
    void _onEdited();

private:
    void addMethod(QGridLayout* grid, int line);
    int addRows(QGridLayout* grid, int line);
    void addNotation(QGridLayout* grid, int line);
    void showMethod();
    void showAdvice();

    MessageLine* problemLine = nullptr;
    ChoiceBox* methodBox = nullptr;
    AngleNotationBox* notationBox = nullptr;
    QVector<FieldRow*> rows;
    const ProjectionFields* shownProjection = nullptr;
};
