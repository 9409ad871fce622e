#pragma once

#include <QWidget>

/// One line of small text below a field. Its room is kept while it is empty, so that the layout never jumps; a text
/// that does not fit ends in "...", and the tooltip has it whole.
class MessageLine : public QWidget {
    Q_OBJECT

public:
    enum class Tone { Hint, Warning, Error };

    explicit MessageLine(QWidget* parent = nullptr);

    /// The field below which the text starts; it lies in the same form and outlives the line.
    void setField(const QWidget* field) { shownBelow = field; }

    void setMessage(const QString& text, Tone tone);
    QString text() const { return message; }
    Tone tone() const { return messageTone; }

    /// The text colour for `tone` on the widget's own background, light or dark.
    static QColor textColor(const QWidget& widget, Tone tone);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QWidget* shownBelow = nullptr;
    QString message;
    Tone messageTone = Tone::Hint;
};
