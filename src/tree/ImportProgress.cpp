#include "tree/ImportProgress.h"

#include <QFileInfo>
#include <QProgressDialog>

namespace {

constexpr qint64 longImport = 500;  // milliseconds
constexpr qint64 refreshEvery = 50; // painting each file's name would cost more than importing it

} // namespace

ImportProgress::ImportProgress(QWidget* parent, int fileCount) : parent(parent), fileCount(fileCount) {
}

ImportProgress::~ImportProgress() = default;

bool ImportProgress::beginFile(const QString& path) {
    if (workedFor > longImport && (!dialog || shownTimer.elapsed() > refreshEvery))
        show(path);
    fileTimer.start();
    return !dialog || !dialog->wasCanceled();
}

void ImportProgress::endFile() {
    workedFor += fileTimer.elapsed();
    ++filesDone;
}

void ImportProgress::show(const QString& path) {
    if (!dialog) {
        dialog = std::make_unique<QProgressDialog>(QString(), tr("Cancel"), 0, fileCount, parent);
        dialog->setWindowTitle(tr("ImportCoordSys"));
        dialog->setWindowModality(Qt::WindowModal);
        dialog->setMinimumDuration(0);
        dialog->setMinimumWidth(360); // so that it keeps its size while names of all lengths pass
    }
    dialog->setLabelText(QFileInfo(path).fileName());
    dialog->setValue(filesDone);
    shownTimer.start();
}
