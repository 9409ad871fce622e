#include "support/MessageBoxDouble.h"

#include "platform/desktop/VornMessageBox.h"

#include <QStringList>

QVector<MessageBoxDouble::Message> MessageBoxDouble::messages;
QVector<int> MessageBoxDouble::answers;

QStringList MessageBoxDouble::texts() {
    QStringList result;
    for (const Message& message : qAsConst(messages))
        result << (message.question ? "?" : "") + message.title + "|" + message.text;
    return result;
}

void MessageBoxDouble::reset() {
    messages.clear();
    answers.clear();
}

int VornMessageBox::information(QWidget* parent, const QString& title, const QString& text) {
    MessageBoxDouble::messages.append({true, parent, title, text});
    return MessageBoxDouble::answers.isEmpty() ? 0 : MessageBoxDouble::answers.takeFirst();
}

void VornMessageBox::information_ok(QWidget* parent, const QString& title, const QString& text) {
    MessageBoxDouble::messages.append({false, parent, title, text});
}
