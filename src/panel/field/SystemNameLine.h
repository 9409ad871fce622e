#pragma once

#include <QWidget>

/// The name of the coordinate system that the panel shows, above its fields. A name that does not fit ends in "...".
class SystemNameLine : public QWidget {
    Q_OBJECT

public:
    explicit SystemNameLine(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return shownText; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText;
};
