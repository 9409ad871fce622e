#include "tree/ImportProgress.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr qint64 longImport = 500;  // milliseconds
constexpr int manyMessages = 3;     // as tiresome as a long import
constexpr qint64 refreshEvery = 50; // painting each file's name would cost more than importing it
constexpr int reachable = 1000;     // what it takes to see a button come and to press it

} // namespace

ImportProgress::ImportProgress(QWidget* parent, int fileCount) : parent(parent), fileCount(fileCount) {
}

ImportProgress::~ImportProgress() = default;

bool ImportProgress::isLong() const {
    return workedFor > longImport || messages >= manyMessages;
}

bool ImportProgress::isCancelled() const {
    return dialog && dialog->wasCanceled();
}

bool ImportProgress::beginFile(const QString& path) {
    if (isLong() && (!dialog || shownTimer.elapsed() > refreshEvery))
        show(path);
    fileTimer.start();
    return !isCancelled();
}

void ImportProgress::endFile() {
    workedFor += fileTimer.elapsed();
    ++filesDone;
}

void ImportProgress::showMessage(const std::function<void()>& message) {
    workedFor += fileTimer.elapsed();
    stayInReach();
    if (!isCancelled()) {
        if (dialog)
            dialog->hide();
        message();
        if (dialog)
            dialog->show();
        ++messages;
        messageTimer.start();
    }
    fileTimer.start();
}

void ImportProgress::stayInReach() {
    const qint64 left = messageTimer.isValid() ? reachable - messageTimer.elapsed() : 0;
    if (!dialog || left <= 0 || isCancelled())
        return;
    QEventLoop wait;
    QObject::connect(dialog.get(), SIGNAL(canceled()), &wait, SLOT(quit()));
    QTimer::singleShot(static_cast<int>(left), &wait, SLOT(quit()));
    wait.exec();
}

void ImportProgress::show(const QString& path) {
    if (!dialog) {
        dialog = std::make_unique<QProgressDialog>(QString(), QString(), 0, fileCount, parent);
        dialog->setWindowTitle(tr("ImportCoordSys"));
        dialog->setWindowModality(Qt::WindowModal);
        dialog->setMinimumDuration(0);
        dialog->setMinimumWidth(360); // so that it keeps its size while names of all lengths pass
        dialog->findChild<QProgressBar*>()->setAccessibleName(tr("ImportCoordSys"));
        auto* label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        dialog->setLabel(label);
        // It comes up where the Enter that closed a message may still be on its way: that must not press it.
        auto* cancelButton = new QPushButton(tr("Cancel"));
        cancelButton->setFocusPolicy(Qt::NoFocus);
        dialog->setCancelButton(cancelButton);
    }
    dialog->setLabelText(QFileInfo(path).fileName());
    dialog->setValue(filesDone);
    shownTimer.start();
}
