#pragma once

#include "platform/desktop/Dialog.h"

#include <QTimer>

class ChoiceBox;
class CopyButton;
class GroupFiles;
class ICoordSystem;
class IDictionary;
class MessageLine;
class QBoxLayout;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableView;
enum class WktDialect;

/// Saves all systems of a group as WKT into a folder, one .prj file each: shows the files' names before, asks once
/// before any file is overwritten, and says at the end what was saved and what was not. Saving goes on between the
/// events of the window and can be cancelled.
class SaveGroupDialog : public Dialog {
    Q_OBJECT

public:
    /// `shown` is the system that is at work on; `dialects` is the list of WktDialect to choose from, with the one to
    /// begin with. All outlive the dialog.
    SaveGroupDialog(ICoordSystem& catalogue, const IDictionary& shown, const QComboBox& dialects, QWidget* parent);

    /// Ends what is under way; only then the dialog.
    void reject() override;

private Q_SLOTS:
    void _onGroupChosen();
    void _onFolderEdited();
    void _onBrowse();
    void _onSave();
    void _onOverwrite();
    void _onKeep();
    void _onCopy();
    void _onTimeout();

private:
    enum class Step { Naming, Choosing, Looking, Asking, Saving, Done };

    void buildChoices(QBoxLayout* layout, const QComboBox& dialects);
    void buildTable(QBoxLayout* layout);
    void buildButtons(QBoxLayout* layout);
    void startSaving(bool overwrite);
    double doPiece();
    void goOn();
    void go(Step to);
    void showState();

    GroupFiles* files;
    Step step = Step::Naming;
    bool overwriting = false;
    QTimer timer; ///< runs while Naming, Looking or Saving
    QWidget* choices;
    ChoiceBox* groupBox;
    QLineEdit* folderEdit;
    ChoiceBox* dialectBox;
    QTableView* table;
    MessageLine* messageLine;
    QProgressBar* progressBar;
    QPlainTextEdit* summaryText;
    CopyButton* copyButton;
    QPushButton* saveButton;
    QPushButton* overwriteButton;
    QPushButton* keepButton;
    QPushButton* closeButton;
};
