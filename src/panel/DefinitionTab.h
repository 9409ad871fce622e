#pragma once

#include "panel/ParamTab.h"

enum class WktDialect;
class ChoiceBox;
class CopyButton;
class ICoordSystem;
class IdentityLine;
class MessageLine;
class QCheckBox;
class QPlainTextEdit;
class QGridLayout;
class QPushButton;
class QTimer;
class TextField;

/// The tab "Definition": the record as PROJ definition and as WKT, to copy and to save as a .prj file; which system of
/// the registry it is; where it is from, and the ways to take another definition over, from the registry or from a
/// text.
class DefinitionTab : public ParamTab {
    Q_OBJECT

public:
    /// `catalogue`, which systems are looked for in and whole groups are saved from, outlives the tab.
    DefinitionTab(ICoordSystem* catalogue, CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onDialectChosen();
    void _onRemarkTimeout();
    void _onIdentified();
    void _onIdentifierToggled();
    void _onCopyDefinition();
    void _onCopyWkt();
    void _onSave();
    void _onSaveGroup();
    void _onFromRegistry();
    void _onFromText();
    void _onNoteEdited();

private:
    void buildNotes(QGridLayout* grid);
    void takeOver(const IDictionary& values);
    QByteArray wkt(bool indented) const;
    QByteArray identifier() const;
    void showWkt();
    QString remark() const;

    ICoordSystem* catalogue;
    QByteArray definition; ///< of the record; empty when it defines no projection
    QByteArray shownWkt;
    QTimer* remarkTimer = nullptr;
    MessageLine* problemLine = nullptr;
    IdentityLine* identityLine = nullptr;
    QWidget* content = nullptr;
    CopyButton* copyDefinitionButton = nullptr;
    QPlainTextEdit* definitionText = nullptr;
    ChoiceBox* dialectBox = nullptr;
    QCheckBox* identifierBox = nullptr;
    QPlainTextEdit* wktText = nullptr;
    MessageLine* remarkLine = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* saveGroupButton = nullptr;
    CopyButton* copyWktButton = nullptr;
    TextField* source = nullptr;
    TextField* note = nullptr;
    QPushButton* registryButton = nullptr;
    QPushButton* textButton = nullptr;
};
