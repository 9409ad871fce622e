#pragma once

#include <QRandomGenerator>
#include <QStringList>

/// What a person may type, paste or choose: sensible things, half things and odd things.
class OddInput {
public:
    /// Writes the files that can be chosen below the folder `folder`.
    OddInput(quint32 seed, const QString& folder);

    /// 0 to `below` - 1.
    int pick(int below) { return random.bounded(below); }
    bool oneIn(int count) { return pick(count) == 0; }
    template <class List> auto anyOf(const List& list) { return list[pick(list.size())]; }

    /// Few names, so that they collide; many that a careless conversion would break.
    QString name();
    QString number();
    QString searchText();
    QString ellipsoidName();
    /// Of WKT files, good and bad, a folder and one that does not exist.
    QString wktFile();
    QString modelFile();
    QString targetFile();

private:
    void writeFile(const QString& name, const QByteArray& content);

    QRandomGenerator random;
    QString folder;
    QStringList wktFiles;
    QStringList modelFiles;
};
