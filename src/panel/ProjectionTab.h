#pragma once

#include "panel/ParamTab.h"

#include <QVector>

class AngleNotationBox;
class ChoiceBox;
class FieldRow;
class MessageLine;
class QGridLayout;
struct ProjectionFields;

/// The tab "Projection": the kind and the fields of that kind.
class ProjectionTab : public ParamTab {
    Q_OBJECT

public:
    ProjectionTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void showRecord() override;

private Q_SLOTS:
    void _onKindActivated(int index);
    void _onNotationChosen();
    void _onEdited();

private:
    void addKind(QGridLayout* grid, int line);
    int addRows(QGridLayout* grid, int line);
    void addNotation(QGridLayout* grid, int line);
    void showKind();
    void showAdvice();

    MessageLine* problemLine;
    ChoiceBox* kindBox;
    AngleNotationBox* notationBox;
    QVector<FieldRow*> rows;
    const ProjectionFields* shownKind = nullptr;
};
