#include "panel/check/PointFigures.h"

#include "panel/computing/PointStatistics.h"
#include "panel/field/ResultLabel.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QGridLayout>
#include <QLabel>

PointFigures::PointFigures(QWidget* parent) : QWidget(parent), counts(new QLabel) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(12);
    const QString columns[] = {PanelText::tr("mean"), PanelText::tr("RMS"), PanelText::tr("largest")};
    const QString lines[] = {"ΔE", "ΔN", PanelText::tr("Distance")};
    for (int column = 0; column < ColumnCount; ++column)
        grid->addWidget(new QLabel(columns[column]), 0, column + 1, Qt::AlignRight);
    for (int line = 0; line < LineCount; ++line) {
        grid->addWidget(new QLabel(lines[line]), line + 1, 0);
        for (int column = 0; column < ColumnCount; ++column) {
            auto* label = new ResultLabel(lines[line] + ' ' + columns[column]);
            grid->addWidget(label, line + 1, column + 1, Qt::AlignRight);
            figures[std::size_t(line)][std::size_t(column)] = label;
        }
    }
    counts->setWordWrap(true);
    counts->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    counts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(counts, 0, ColumnCount + 1, LineCount + 1, 1);
    grid->setColumnStretch(ColumnCount + 1, 1);
}

void PointFigures::setStatistics(const PointStatistics& statistics, std::size_t rows) {
    const PointStatistics::Figures* const lines[] = {&statistics.easting, &statistics.northing, &statistics.distance};
    for (std::size_t line = 0; line < LineCount; ++line) {
        const double values[] = {lines[line]->mean, lines[line]->rms, lines[line]->largest};
        for (std::size_t column = 0; column < ColumnCount; ++column)
            figures[line][column]->setText(statistics.count > 0 ? LengthUnit::text(values[column])
                                                                : QStringLiteral("–"));
    }
    const std::size_t pairs = statistics.count + statistics.leftOut;
    QStringList texts{PanelText::tr("%n point(s), %1 with both pairs", nullptr, int(rows)).arg(pairs)};
    if (statistics.leftOut > 0)
        texts << PanelText::tr("%n left out", nullptr, int(statistics.leftOut));
    if (statistics.beyond > 0)
        texts << PanelText::tr("%1 beyond the tolerance").arg(statistics.beyond);
    if (statistics.problems > 0)
        texts << PanelText::tr("%1 without a result").arg(statistics.problems);
    if (statistics.duplicates > 0)
        texts << PanelText::tr("%1 with a name that another has").arg(statistics.duplicates);
    counts->setText(rows == 0 ? PanelText::tr("Paste, open or type points.") : texts.join(", "));
}
