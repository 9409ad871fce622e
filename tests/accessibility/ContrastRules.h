#pragma once

#include "PageRules.h"
#include "panel/field/Colours.h"

#include <QtWidgets>

#include <cmath>

/// Whether what a page draws can be told from what it is drawn on, by the colours that are really seen.
namespace ContrastRules {

/// WCAG 2.1's relative luminance and contrast ratio.
inline double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

inline double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// How often each colour is seen.
inline QHash<QRgb, int> colours(const QImage& picture, const QRect& part) {
    QHash<QRgb, int> seen;
    const double scale = picture.devicePixelRatio();
    const QRect inside =
        QRectF(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale).toAlignedRect() &
        picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++seen[picture.pixel(x, y)];
    }
    return seen;
}

/// Of a text: the background is what is seen most, the text what differs from it most.
inline double textContrast(const QImage& picture, const QRect& part) {
    const auto seen = colours(picture, part);
    QRgb background = 0;
    int most = 0;
    for (auto colour = seen.begin(); colour != seen.end(); ++colour) {
        if (*colour > most) {
            most = *colour;
            background = colour.key();
        }
    }
    double largest = 1.0;
    for (auto colour = seen.begin(); colour != seen.end(); ++colour)
        largest = std::max(largest, contrast(colour.key(), background));
    return largest;
}

inline QRect placeOf(const QWidget* widget, const QWidget& root, const QRect& part) {
    return QRect(widget->mapTo(const_cast<QWidget*>(&root), part.topLeft()), part.size());
}

/// The text of a widget that is drawn, if it is one that draws a text of its own.
inline QString textOf(const QWidget* widget) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
        return edit->text() + edit->placeholderText();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(widget))
        return text->toPlainText();
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return box->isEditable() ? QString() : box->currentText();
    if (widget->inherits("QLabel") || widget->inherits("QAbstractButton") || widget->inherits("MessageLine") ||
        widget->inherits("SystemNameLine"))
        return widget->property("text").isValid() ? widget->property("text").toString() : widget->accessibleName();
    return widget->inherits("QwtScaleWidget") ? "0" : QString();
}

/// Texts that can't be read, in a picture of the page as it is seen.
inline QStringList faint(QWidget& root, const QImage& picture) {
    constexpr double enough = 4.5;
    QStringList found;
    const auto look = [&](const QRect& place, const QString& what) {
        const double seen = textContrast(picture, place);
        if (!place.isEmpty() && seen < enough)
            found << QString("contrast %1 of %2").arg(seen, 0, 'f', 2).arg(what);
    };
    for (QWidget* widget : PageRules::visible<QWidget>(root)) {
        constexpr int frame = 3;
        if (widget->isEnabled() && !textOf(widget).trimmed().isEmpty() && !widget->visibleRegion().isEmpty()) {
            const bool hasFrame = widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
                                  widget->inherits("QPushButton") || widget->inherits("QComboBox");
            const int edge = hasFrame ? frame : 0;
            QRect part = widget->visibleRegion().boundingRect().adjusted(edge, edge, -edge, -edge);
            if (widget->inherits("QComboBox"))
                part.setRight(part.right() - 20); // the arrow
            look(placeOf(widget, root, part), PageRules::called(widget) + ' ' + textOf(widget).left(40));
        }
        auto* const view = qobject_cast<QAbstractItemView*>(widget);
        const int rows = view && view->model() && !view->inherits("QHeaderView") ? view->model()->rowCount() : 0;
        for (int row = 0; row < std::min(rows, 30); ++row) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                const QModelIndex cell = view->model()->index(row, column);
                const QRect part = view->visualRect(cell) & view->viewport()->rect();
                // What is selected has the desktop's own colours.
                const bool isSelected = view->selectionModel()->isSelected(cell);
                if (!cell.data().toString().isEmpty() && part.height() > 10 && !isSelected)
                    look(placeOf(view->viewport(), root, part.adjusted(2, 2, -2, -2)),
                         QString("cell %1, %2 of %3").arg(row).arg(column).arg(PageRules::called(view)));
            }
        }
    }
    return found;
}

inline const QWidget* canvasOf(const QWidget* plot) {
    for (const QWidget* part : plot->findChildren<QWidget*>()) {
        if (part->inherits("QwtPlotCanvas"))
            return part;
    }
    return plot;
}

/// Lines and marks of pictures that are lost on what lies below them.
inline QStringList lost(QWidget& root, const QImage& picture) {
    constexpr double enough = 3.0;
    QStringList found;
    for (QWidget* plot : PageRules::visible<QWidget>(root)) {
        if (!plot->inherits("AreaPlot") && !plot->inherits("PointsPlot"))
            continue;
        const QWidget* const canvas = canvasOf(plot);
        const auto seen = colours(picture, placeOf(canvas, root, canvas->contentsRect()));
        QList<QColor> marks{Colours::line, Colours::gridLine, Qt::black};
        if (plot->inherits("PointsPlot"))
            marks = {Colours::sound, Colours::beyond, Colours::leftOut, Qt::black};
        // What covers some of the canvas is no line.
        const int least = canvas->width() * canvas->height() / 200;
        for (auto colour = seen.begin(); colour != seen.end(); ++colour) {
            if (marks.contains(QColor(colour.key())))
                continue;
            for (const QColor& mark : marks) {
                if (*colour > least && contrast(colour.key(), mark) < enough)
                    found << QString("%1 on %2 has a contrast of %3")
                                 .arg(mark.name(), QColor(colour.key()).name())
                                 .arg(contrast(colour.key(), mark));
            }
        }
    }
    return found;
}

} // namespace ContrastRules
