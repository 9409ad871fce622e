#pragma once

#include <QDoubleSpinBox>

/// A number to type or to step through, with a decimal point whatever the system's language. A typed comma is one as
/// well: so small a number has no thousands to part. Where the box holds whole numbers, others can be typed, to be seen
/// rather than to lose their point, and are not taken.
class NumberBox : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit NumberBox(QWidget* parent = nullptr);

    QValidator::State validate(QString& input, int& cursor) const override;
};
