#pragma once

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

/// Stands in place of VornMessageBox when a test links it: records every message and gives the next scripted answer.
class MessageBoxDouble {
public:
    struct Message {
        bool question; ///< information(); otherwise information_ok()
        QWidget* parent;
        QString title;
        QString text;
    };

    /// Every message since the last reset(), in order.
    static QVector<Message> messages;

    /// The answers to the next questions, in order; when they run out the answer is 0 (declined).
    static QVector<int> answers;

    /// Called while a message is shown, when set.
    static std::function<void()> whileShown;

    /// The messages as "title|text" texts, questions with a "?" in front.
    static QStringList texts();

    static void reset();
};
