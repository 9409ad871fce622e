#include "panel/check/ReportDialog.h"

#include "panel/record/PanelText.h"
#include "panel/record/SystemFileName.h"

namespace {

QString htmlFilter() {
    return PanelText::tr("HTML, one file with its pictures") + " (*.html)";
}

} // namespace

ReportDialog::ReportDialog(const IDictionary& record, QWidget* parent)
    : QFileDialog(parent, PanelText::tr("Save report"), QString(), "PDF (*.pdf);;" + htmlFilter()) {
    setAcceptMode(AcceptSave);
    setDefaultSuffix("pdf");
    selectFile(SystemFileName::of(record, "pdf"));
    connect(this, SIGNAL(filterSelected(QString)), this, SLOT(_onFilterSelected(QString)));
}

QString ReportDialog::path() const {
    return selectedFiles().value(0);
}

/// As the file's name says, where that says one of the two.
ReportWriting::Form ReportDialog::form() const {
    const QString suffix = QFileInfo(path()).suffix().toLower();
    const bool isHtml =
        suffix == "html" || suffix == "htm" || (suffix != "pdf" && selectedNameFilter() == htmlFilter());
    return isHtml ? ReportWriting::Form::Html : ReportWriting::Form::Pdf;
}

void ReportDialog::_onFilterSelected(const QString& filter) {
    setDefaultSuffix(filter == htmlFilter() ? "html" : "pdf");
}
