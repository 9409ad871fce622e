#pragma once

#include "panel/check/ReportWriting.h"

#include <QFileDialog>

class IDictionary;

/// Asks where a report goes, and as what.
class ReportDialog : public QFileDialog {
    Q_OBJECT

public:
    /// Proposes the name of the record's system.
    ReportDialog(const IDictionary& record, QWidget* parent);

    QString path() const;
    ReportWriting::Form form() const;

private Q_SLOTS:
    void _onFilterSelected(const QString& filter);
};
