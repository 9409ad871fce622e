#pragma once

#include <QComboBox>

/// A list to choose from that the mouse wheel does not change: scrolling over a form must not edit the record. While
/// nothing is chosen it shows its placeholder text.
class ChoiceBox : public QComboBox {
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent = nullptr);

    /// Less than the longest choice: a form is not to scroll for it.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
