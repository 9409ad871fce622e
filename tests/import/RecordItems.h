#pragma once

#include "catalogue/IDictionary.h"

#include <QByteArrayList>

/// `items` ("key=text key=text ...") as the record has them: "key=text" for each, a key alone where it is missing.
inline QByteArray inRecord(const IDictionary& record, const QByteArray& items) {
    QByteArrayList found;
    for (const QByteArray& item : items.split(' ')) {
        const QByteArray key = item.split('=').first();
        const char* const text = record.getValue(key);
        found.append(text ? key + '=' + text : key);
    }
    return found.join(' ');
}

/// Sets the items in the record; a key alone is removed.
inline void setItems(IDictionary* record, const QByteArray& items) {
    for (const QByteArray& item : items.split(' ')) {
        const QByteArrayList pieces = item.split('=');
        if (pieces.size() == 2)
            record->setText(pieces[0], pieces[1]);
        else
            record->remove(pieces[0]);
    }
}
