#pragma once

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QMap>
#include <QString>

#include <functional>

/// A report as a PDF of A4 pages, numbered at the foot. No heading stands alone at the end of a page, and a long
/// table's heading is repeated on each. It needs no widgets and can work in a thread of its own.
class ReportPdf {
public:
    QString html;
    QMap<QString, QImage> pictures; ///< by the names that the text has for them
    QString title;                  ///< of the document, and at the foot
    QString creator;
    QFont font;

    /// The PDF. `goesOn` is told how much of the work is done, 0 to 1, and says whether to go on; empty where it did
    /// not.
    QByteArray write(const std::function<bool(double)>& goesOn) const;
};
