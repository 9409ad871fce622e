#include "support/MessageBoxDouble.h"

#include "platform/desktop/VornMessageBox.h"

#include <QStringList>

QVector<MessageBoxDouble::Message> MessageBoxDouble::messages;
QVector<int> MessageBoxDouble::answers;
std::function<void()> MessageBoxDouble::whileShown;

static void show(const MessageBoxDouble::Message& message) {
    MessageBoxDouble::messages.append(message);
    if (MessageBoxDouble::whileShown)
        MessageBoxDouble::whileShown();
}

QStringList MessageBoxDouble::texts() {
    QStringList result;
    for (const Message& message : qAsConst(messages))
        result << (message.question ? "?" : "") + message.title + "|" + message.text;
    return result;
}

void MessageBoxDouble::reset() {
    messages.clear();
    answers.clear();
    whileShown = nullptr;
}

int VornMessageBox::information(QWidget* parent, const QString& title, const QString& text) {
    show({true, parent, title, text});
    return MessageBoxDouble::answers.isEmpty() ? 0 : MessageBoxDouble::answers.takeFirst();
}

void VornMessageBox::information_ok(QWidget* parent, const QString& title, const QString& text) {
    show({false, parent, title, text});
}
