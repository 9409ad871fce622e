#pragma once

#include <QDialog>

/// The base of the tool's dialogs: a QDialog without the "?" title button.
class Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent);
};
