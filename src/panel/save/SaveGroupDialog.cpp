#include "panel/save/SaveGroupDialog.h"

#include "panel/field/ChoiceBox.h"
#include "panel/field/CopyButton.h"
#include "panel/field/MessageLine.h"
#include "panel/field/RowTable.h"
#include "panel/record/PanelText.h"
#include "panel/save/GroupFiles.h"
#include "platform/projection/WktDialect.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr qint64 slice = 25;     // milliseconds
constexpr int wholeBar = 1000;   // steps
constexpr int summaryHeight = 6; // lines

/// Where a group was saved last since the program's start; the next one may go there as well.
QString& lastFolder() {
    static QString folder;
    return folder;
}

/// A relative path would lead to wherever the program was started.
bool isFolder(const QString& path) {
    return QDir::isAbsolutePath(path) && QFileInfo(path).isDir();
}

} // namespace

SaveGroupDialog::SaveGroupDialog(ICoordSystem& catalogue, const IDictionary& shown, const QComboBox& dialects,
                                 QWidget* parent)
    : Dialog(parent), files(new GroupFiles(catalogue, shown, this)) {
    setWindowTitle(PanelText::tr("Save group as .prj"));
    auto* layout = new QVBoxLayout(this);
    buildChoices(layout, dialects);
    buildTable(layout);
    buildButtons(layout);
    resize(720, 560);
    connect(&timer, SIGNAL(timeout()), this, SLOT(_onTimeout()));
    _onGroupChosen();
    folderEdit->setFocus();
}

void SaveGroupDialog::buildChoices(QBoxLayout* layout, const QComboBox& dialects) {
    choices = new QWidget;
    auto* grid = new QGridLayout(choices);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto addRow = [grid](int row, const QString& text, QWidget* widget) {
        auto* label = new QLabel(text);
        label->setBuddy(widget);
        widget->setAccessibleName(text);
        grid->addWidget(label, row, 0);
        grid->addWidget(widget, row, 1);
    };
    groupBox = new ChoiceBox;
    groupBox->addItems(files->groups());
    addRow(0, PanelText::tr("Group"), groupBox);
    folderEdit = new QLineEdit(QDir::toNativeSeparators(lastFolder()));
    addRow(1, PanelText::tr("Folder"), folderEdit);
    auto* browseButton = new QPushButton(PanelText::tr("Browse..."));
    browseButton->setAutoDefault(false);
    grid->addWidget(browseButton, 1, 2);
    dialectBox = new ChoiceBox;
    for (int i = 0; i < dialects.count(); ++i)
        dialectBox->addItem(dialects.itemText(i), dialects.itemData(i));
    dialectBox->setCurrentIndex(dialects.currentIndex());
    addRow(2, PanelText::tr("WKT dialect"), dialectBox);
    grid->setColumnStretch(1, 1);
    layout->addWidget(choices);
    connect(groupBox, SIGNAL(activated(int)), this, SLOT(_onGroupChosen()));
    connect(folderEdit, SIGNAL(textChanged(QString)), this, SLOT(_onFolderEdited()));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(_onBrowse()));
}

void SaveGroupDialog::buildTable(QBoxLayout* layout) {
    table = rowTable(*files);
    table->setAccessibleName(PanelText::tr("Files"));
    QHeaderView* const header = table->horizontalHeader();
    header->resizeSection(GroupFiles::System, 210);
    header->resizeSection(GroupFiles::File, 230);
    messageLine = new MessageLine;
    progressBar = new QProgressBar;
    progressBar->setRange(0, wholeBar);
    progressBar->setAccessibleName(PanelText::tr("Progress"));
    summaryText = new QPlainTextEdit;
    summaryText->setAccessibleName(PanelText::tr("Summary"));
    summaryText->setReadOnly(true);
    summaryText->setTabChangesFocus(true);
    summaryText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    summaryText->setFixedHeight(summaryText->fontMetrics().lineSpacing() * summaryHeight + 12);
    layout->addWidget(table, 1);
    layout->addWidget(messageLine);
    layout->addWidget(progressBar);
    layout->addWidget(summaryText);
}

void SaveGroupDialog::buildButtons(QBoxLayout* layout) {
    copyButton = new CopyButton(PanelText::tr("Copy summary"));
    saveButton = new QPushButton(PanelText::tr("Save"));
    overwriteButton = new QPushButton(PanelText::tr("Overwrite"));
    keepButton = new QPushButton(PanelText::tr("Keep existing"));
    closeButton = new QPushButton;
    auto* row = new QHBoxLayout;
    row->addWidget(copyButton);
    row->addStretch();
    for (QPushButton* button : {saveButton, overwriteButton, keepButton, closeButton})
        row->addWidget(button);
    for (QPushButton* button : {static_cast<QPushButton*>(copyButton), overwriteButton, keepButton, closeButton})
        button->setAutoDefault(false);
    layout->addLayout(row);
    connect(copyButton, SIGNAL(clicked()), this, SLOT(_onCopy()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(_onSave()));
    connect(overwriteButton, SIGNAL(clicked()), this, SLOT(_onOverwrite()));
    connect(keepButton, SIGNAL(clicked()), this, SLOT(_onKeep()));
    connect(closeButton, SIGNAL(clicked()), this, SLOT(reject()));
}

void SaveGroupDialog::go(Step to) {
    step = to;
    timer.stop();
    if (step == Step::Naming || step == Step::Looking || step == Step::Saving)
        timer.start(0);
    showState();
    if (step == Step::Saving)
        closeButton->setFocus();
    else if (step == Step::Asking) // nobody answers by accident
        table->setFocus();
    else if (step == Step::Done)
        summaryText->setFocus();
}

void SaveGroupDialog::showState() {
    const bool isChoosing = step == Step::Naming || step == Step::Choosing || step == Step::Done;
    const bool isWorking = step == Step::Looking || step == Step::Saving;
    const int count = files->rowCount();
    const bool isRight = isFolder(folderEdit->text());
    const bool isWrong = !isRight && !folderEdit->text().isEmpty();
    const int there = step == Step::Asking ? files->existing() : 0;
    messageLine->setMessage(
        step == Step::Asking
            ? PanelText::tr("There already: %n of %1 files. Overwrite them?", nullptr, there).arg(count)
        : isWrong ? PanelText::tr("There is no such folder.")
                  : PanelText::tr("Systems: %1").arg(count),
        step == Step::Asking ? MessageLine::Tone::Warning
        : isWrong            ? MessageLine::Tone::Error
                             : MessageLine::Tone::Hint);
    choices->setEnabled(isChoosing);
    progressBar->setVisible(isWorking);
    summaryText->setVisible(step == Step::Done);
    copyButton->setVisible(step == Step::Done);
    saveButton->setVisible(isChoosing || isWorking);
    saveButton->setEnabled(isChoosing && step != Step::Naming && isRight && count > 0);
    overwriteButton->setVisible(step == Step::Asking);
    keepButton->setVisible(step == Step::Asking);
    (step == Step::Done ? closeButton : saveButton)->setDefault(true);
    closeButton->setText(step == Step::Done ? PanelText::tr("Close") : PanelText::tr("Cancel"));
}

void SaveGroupDialog::reject() {
    if (step == Step::Looking || step == Step::Asking) {
        _onGroupChosen();
        folderEdit->setFocus();
    } else if (step == Step::Saving) {
        goOn();
    } else {
        Dialog::reject();
    }
}

void SaveGroupDialog::_onGroupChosen() {
    files->setGroup(groupBox->currentText());
    go(Step::Naming);
}

void SaveGroupDialog::_onFolderEdited() {
    showState();
}

void SaveGroupDialog::_onBrowse() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, PanelText::tr("Save group as .prj"), folderEdit->text());
    if (!folder.isEmpty())
        folderEdit->setText(QDir::toNativeSeparators(folder));
}

void SaveGroupDialog::_onSave() {
    lastFolder() = folderEdit->text();
    files->start(folderEdit->text(), WktDialect(dialectBox->currentData().toInt()));
    go(Step::Looking);
}

void SaveGroupDialog::startSaving(bool overwrite) {
    overwriting = overwrite;
    go(Step::Saving);
}

void SaveGroupDialog::_onOverwrite() {
    startSaving(true);
}

void SaveGroupDialog::_onKeep() {
    startSaving(false);
}

void SaveGroupDialog::_onCopy() {
    copyButton->copy(files->report());
}

double SaveGroupDialog::doPiece() {
    return step == Step::Naming ? files->nameFiles() : step == Step::Looking ? files->look() : files->save(overwriting);
}

void SaveGroupDialog::_onTimeout() {
    QElapsedTimer time;
    time.start();
    double part = 0.0;
    while (part < 1.0 && time.elapsed() < slice)
        part = doPiece();
    progressBar->setValue(int(part * wholeBar));
    if (part >= 1.0)
        goOn();
}

void SaveGroupDialog::goOn() {
    if (step == Step::Naming) {
        go(Step::Choosing);
    } else if (step == Step::Saving) {
        files->end();
        summaryText->setPlainText(files->summary());
        go(Step::Done);
    } else if (files->existing() > 0) {
        files->sortByResult();
        go(Step::Asking);
    } else {
        startSaving(false);
    }
}
