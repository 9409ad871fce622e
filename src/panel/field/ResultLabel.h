#pragma once

#include <QLabel>

/// A figure or a sentence that a form gives, to be selected and copied. A screen reader says its name and its text; of
/// a QLabel with a name it would say the name alone.
class ResultLabel : public QLabel {
    Q_OBJECT

public:
    /// `name` may be empty: then the text says all.
    explicit ResultLabel(const QString& name = QString(), QWidget* parent = nullptr);
};
