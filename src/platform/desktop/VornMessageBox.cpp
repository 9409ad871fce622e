#include "platform/desktop/VornMessageBox.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

/// A box that waits for one of its buttons: pressed by the mouse, by the letter underlined in it, or by Space or Enter
/// once Tab has brought the focus to it. Nothing else closes it.
class QuestionBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

    int ask() {
        for (QPushButton* button : findChildren<QPushButton*>())
            button->setAutoDefault(false); // the first one that can become the default would
        setFocus();                        // on the box, or its first button would get it
        return exec();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel))
            return;
        auto* button = qobject_cast<QPushButton*>(focusWidget());
        if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
            button->click();
        else
            QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

int VornMessageBox::information(QWidget* parent, const QString& title, const QString& text) {
    QuestionBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    // Names come from the user and from files: a "<" in one must stay a "<".
    box.setTextFormat(Qt::PlainText);
    return box.ask() == QMessageBox::Yes ? 1 : 0;
}

void VornMessageBox::information_ok(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
