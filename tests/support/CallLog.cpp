#include "support/CallLog.h"

#include <QByteArray>

QString CallLog::logged(const QString& call, const char* argument) {
    calls << call + "(" + QString::fromLocal8Bit(argument) + ")";
    return QString::fromLocal8Bit(argument);
}

const char* CallLog::listed(const QString& call, QByteArray& storage, const QStringList& names) {
    logged(call, "");
    storage = names.join(",").toLocal8Bit();
    return nullLists ? nullptr : storage.constData();
}
