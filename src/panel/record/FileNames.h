#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// Names for the files of one folder, made of names that people gave. Letters of every script stay; what a desktop does
/// not take is replaced, Windows' rules being the strictest: characters of its own (<>:"/\|?*), control characters,
/// device names (CON, LPT1.old), dots and blanks at the end, case and composition that alone tell two names apart.
class FileNames {
public:
    /// `suffix` is what every name ends in: ".prj".
    explicit FileNames(const QString& suffix) : suffix(suffix) {}

    /// The file name for `name`, which no other call has given: the second "Grid" is "Grid (2).prj". It has at most
    /// 150 bytes in UTF-8 (file systems take 255, less what a replacement adds for the time of its writing).
    QString add(const QString& name);

private:
    QString suffix;
    QSet<QString> taken;
    QHash<QString, int> numbers; ///< the last one tried, by what names are compared by
};
