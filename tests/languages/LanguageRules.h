#pragma once

#include "accessibility/PageRules.h"
#include "support/Catalogue.h"

#include <QtWidgets>
#include <qwt_scale_widget.h>

/// What every page keeps in every language. Each function gives what breaks its rule.
namespace LanguageRules {

/// Horizontal blank that a widget's style takes from the text's room.
constexpr int lineEditMargin = 2;
constexpr int titleButtons = 100; ///< what a window manager puts beside a title: an icon, three buttons

inline bool hasLetters(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isLetter(); });
}

/// The texts of the page: what is seen at once, and what the mouse or a screen reader tells of it.
inline QStringList textsOf(QWidget& root) {
    QStringList texts{root.windowTitle()};
    for (QWidget* widget : PageRules::visible<QWidget>(root)) {
        texts << widget->accessibleName() << widget->accessibleDescription() << widget->toolTip()
              << widget->whatsThis();
        for (const char* property : {"text", "title", "placeholderText"})
            texts << widget->property(property).toString();
        if (const auto* box = qobject_cast<QComboBox*>(widget)) {
            for (int i = 0; i < box->count(); ++i)
                texts << box->itemText(i);
        }
        if (const auto* bar = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < bar->count(); ++i)
                texts << bar->tabText(i) << bar->tabToolTip(i);
        }
        const auto* const view = qobject_cast<QAbstractItemView*>(widget);
        const QAbstractItemModel* const model = view ? view->model() : nullptr;
        for (int column = 0; model && column < model->columnCount(); ++column) {
            texts << model->headerData(column, Qt::Horizontal).toString()
                  << model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
            for (int row = 0; row < qMin(50, model->rowCount()); ++row) {
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                    texts << model->index(row, column).data(role).toString();
            }
        }
    }
    texts.removeDuplicates();
    return texts;
}

/// Whether one of the lines of a text is longer than the room.
inline bool isWider(const QWidget* widget, const QString& text, int room) {
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width() > room;
}

/// Texts that have less room than they need.
inline QStringList cutOff(const QWidget& root) {
    QStringList found;
    const auto report = [&](const QWidget* widget, const QString& text, int needed, int room) {
        found << QString("cut off: \"%1\" needs %2, has %3 (%4)")
                     .arg(text)
                     .arg(needed)
                     .arg(room)
                     .arg(widget->metaObject()->className());
    };
    for (QWidget* widget : PageRules::visible<QWidget>(root)) {
        const QSize hint = widget->sizeHint();
        if (const auto* area = qobject_cast<QScrollArea*>(widget)) {
            if (area->horizontalScrollBar()->isVisible())
                report(area, "the page", area->widget()->width(), area->viewport()->width());
        }
        if (const auto* label = qobject_cast<QLabel*>(widget)) {
            if (label->text().isEmpty())
                continue;
            const int height = label->wordWrap() ? label->heightForWidth(label->width()) : hint.height();
            if (height > label->height())
                report(label, label->text(), height, label->height());
            // Of what is wrapped, the longest word.
            const int width = label->wordWrap() ? label->minimumSizeHint().width() : hint.width();
            if (width > label->width())
                report(label, label->text(), width, label->width());
        } else if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
            if (!button->text().isEmpty() && hint.width() > button->width())
                report(button, button->text(), hint.width(), button->width());
            if (button->text().isEmpty() && button->parentWidget()->inherits("QTabBar"))
                report(button->parentWidget(), "the tabs", button->parentWidget()->sizeHint().width(),
                       button->parentWidget()->width());
        } else if (const auto* box = qobject_cast<QGroupBox*>(widget)) {
            if (box->minimumSizeHint().width() > box->width())
                report(box, box->title(), box->minimumSizeHint().width(), box->width());
        } else if (const auto* edit = qobject_cast<QLineEdit*>(widget)) {
            const int room = edit->contentsRect().width() - 2 * lineEditMargin;
            if (edit->text().isEmpty() && isWider(edit, edit->placeholderText(), room))
                report(edit, edit->placeholderText(), edit->fontMetrics().horizontalAdvance(edit->placeholderText()),
                       room);
        } else if (const auto* list = qobject_cast<QComboBox*>(widget)) {
            QStyleOptionComboBox option;
            option.initFrom(list);
            const int room =
                list->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list).width();
            if (!list->isEditable() && isWider(list, list->currentText(), room))
                report(list, list->currentText(), list->fontMetrics().horizontalAdvance(list->currentText()), room);
        } else if (const auto* header = qobject_cast<QHeaderView*>(widget)) {
            for (int i = 0; i < header->count(); ++i) {
                if (!header->isSectionHidden(i) && header->sectionSizeHint(i) > header->sectionSize(i))
                    report(header, header->model()->headerData(i, header->orientation()).toString(),
                           header->sectionSizeHint(i), header->sectionSize(i));
            }
        } else if (const auto* axis = qobject_cast<QwtScaleWidget*>(widget)) {
            const int needed = int(axis->title().textSize(axis->font()).width());
            const int room = qMax(axis->width(), axis->height());
            if (needed > room)
                report(axis, axis->title().text(), needed, room);
        } else if (widget->inherits("MessageLine")) {
            if (isWider(widget, widget->accessibleName(), widget->width()))
                report(widget, widget->accessibleName(),
                       widget->fontMetrics().horizontalAdvance(widget->accessibleName()), widget->width());
        }
    }
    return found;
}

/// Windows that a small screen has no room for, and titles that their windows have none for.
inline QStringList oversized(const QWidget& root) {
    constexpr QSize screen(1280, 720);
    QStringList found;
    if (root.width() > screen.width() || root.height() > screen.height())
        found << QString("%1 x %2 is more than a small screen").arg(root.width()).arg(root.height());
    // That which asks for a name is as wide as its two buttons.
    if (!root.inherits("DlgInputName") && isWider(&root, root.windowTitle(), root.width() - titleButtons))
        found << QString("no room for the title \"%1\" in a width of %2").arg(root.windowTitle()).arg(root.width());
    return found;
}

/// Knows texts that stayed in the sources' language though the catalogue has another for them, alone or within others.
class Untranslated {
public:
    explicit Untranslated(const Catalogue& catalogue) {
        for (const QString& source : catalogue.all().uniqueKeys()) {
            const QStringList translations = catalogue.all().values(source);
            if (translations.contains(source) || translations.contains(QString()) || !hasLetters(source))
                continue;
            alone.insert(source);
            // Names from the registry, which are English, have short ones of them by chance.
            QStringList parts = source.split(QRegularExpression("%L?\\d+"));
            if (parts.join("").count(' ') < 3)
                continue;
            for (QString& part : parts)
                part = QRegularExpression::escape(part);
            if (parts.size() > 1)
                patterns << QRegularExpression("^" + parts.join(".+") + "$");
            else
                within << source;
        }
        for (const QString& translation : catalogue.all())
            translated.insert(translation);
    }

    QStringList in(const QStringList& texts) const {
        QStringList found;
        for (const QString& text : texts) {
            const bool isWhole = alone.contains(text) && !translated.contains(text);
            const bool hasPart =
                std::any_of(within.begin(), within.end(), [&](const QString& source) { return text.contains(source); });
            const bool isFilled = std::any_of(patterns.begin(), patterns.end(), [&](const QRegularExpression& pattern) {
                return pattern.match(text).hasMatch();
            });
            if (isWhole || hasPart || isFilled)
                found << "not translated: \"" + text + '"';
        }
        return found;
    }

private:
    QSet<QString> alone, translated;
    QStringList within;
    QList<QRegularExpression> patterns;
};

} // namespace LanguageRules
