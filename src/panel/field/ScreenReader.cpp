#include "panel/field/ScreenReader.h"

#include "panel/record/PanelText.h"

#include <QAccessibleWidget>
#include <QLabel>

namespace {

/// A text that has a name as well: both are said.
class NamedText : public QAccessibleWidget {
public:
    explicit NamedText(QLabel* label) : QAccessibleWidget(label, QAccessible::StaticText), label(label) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return label->text();
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        const QString name = label->accessibleName();
        return name.isEmpty() ? label->text() : PanelText::named(name, label->text());
    }

private:
    QLabel* label;
};

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (className == "ResultLabel")
        return new NamedText(qobject_cast<QLabel*>(widget));
    if (className == "MessageLine" || className == "SystemNameLine")
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    return className == "QwtPlot" ? new QAccessibleWidget(widget, QAccessible::Graphic) : nullptr;
}

} // namespace

void ScreenReader::introduceWidgets() {
    QAccessible::installFactory(interfaceOf);
}
