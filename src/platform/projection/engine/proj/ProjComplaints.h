#pragma once

#include "platform/projection/engine/proj/ProjContext.h"

#include <QByteArray>

/// Listens to what PROJ has to say against a text, while it lives.
class ProjComplaints {
public:
    explicit ProjComplaints(const ProjContext& context) : context(context) {
        proj_log_func(context.get(), this, [](void* listener, int, const char* message) {
            static_cast<ProjComplaints*>(listener)->add(message);
        });
    }
    ~ProjComplaints() { context.beQuiet(); }

    ProjComplaints(const ProjComplaints&) = delete;
    ProjComplaints& operator=(const ProjComplaints&) = delete;

    /// The first one, in one line, in English, without PROJ's number for it; empty when there is none.
    QByteArray first() const {
        const QByteArray head = "proj_create: ";
        const int kind = message.indexOf("): ");
        return message.startsWith(head + "Error") && kind > 0 ? message.mid(kind + 3)
               : message.startsWith(head)                     ? message.mid(head.size())
                                                              : message;
    }

private:
    void add(const char* text) {
        if (message.isEmpty())
            message = QByteArray(text).simplified();
    }

    const ProjContext& context;
    QByteArray message;
};
