#include "platform/sdk/Generations.h"

#include "platform/utility/DiskCalls.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

constexpr int lastSaves = 10;
constexpr int lastDays = 30;
constexpr qint64 mostBytes = 100000000;

} // namespace

Generations::Generations(const QString& file)
    : folder(QFileInfo(file).dir().filePath(QStringLiteral("generations"))), name(QFileInfo(file).fileName()) {
}

bool Generations::take(const QString& generation) const {
    const QDateTime saved = QFileInfo(generation).lastModified();
    const QString wanted = folder + QLatin1Char('/') + name + saved.toString(QStringLiteral(".yyyyMMdd-HHmmss-zzz"));
    QString free = wanted;
    for (int i = 2; QFileInfo::exists(free); ++i)
        free = wanted + QLatin1Char('-') + QString::number(i);
    return DiskCalls::makeFolder(folder) && DiskCalls::rename(generation, free);
}

void Generations::thin() const {
    const QString saves =
        QStringLiteral("%1.%2-%3-*").arg(name, QString(8, QLatin1Char('?')), QString(6, QLatin1Char('?')));
    // QDir would ask for the local time of both files in every comparison: a third of what a small save costs.
    QVector<QPair<QDateTime, QFileInfo>> latestFirst;
    for (const QFileInfo& generation : QDir(folder).entryInfoList({saves}, QDir::Files, QDir::Unsorted))
        latestFirst.append({generation.lastModified(), generation});
    std::sort(latestFirst.begin(), latestFirst.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    QSet<QDate> days;
    qint64 bytes = 0;
    int kept = 0;
    for (const auto& [saved, generation] : qAsConst(latestFirst)) {
        const QDate day = saved.date();
        const bool isLastOfDay = !days.contains(day) && kept < lastSaves + lastDays;
        const bool fits = bytes + generation.size() <= mostBytes;
        if (kept > 0 && !(fits && (kept < lastSaves || isLastOfDay))) {
            DiskCalls::remove(generation.filePath());
            continue;
        }
        ++kept;
        days.insert(day);
        bytes += generation.size();
    }
}
