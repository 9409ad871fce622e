#pragma once

#include "support/Files.h"
#include "support/TextTable.h"

#include <QDir>
#include <QMap>
#include <QRandomGenerator>
#include <QStringList>

/// What a person may type, paste or choose: sensible things, half things and odd things.
class OddInput {
public:
    /// Writes the files that can be chosen below the folder `folder`.
    OddInput(quint32 seed, const QString& itsFolder) : random(seed), folder(itsFolder) {
        for (const QByteArrayList& row : textTable("inputs.txt")) {
            for (const QByteArray& entry : row.mid(1))
                lists[row[0]] << QString::fromUtf8(entry.constData(), entry.size());
        }
        lists["odd names"] << QString(QChar(0xD83D)); // half a character
        for (const char* each : {"files/a folder.prj", "models", "saved"})
            QDir(folder).mkpath(each);
        lists["files"] << "files/a folder.prj"
                       << "files/missing.prj";
        for (const QByteArrayList& row : textTable("files.txt")) {
            QByteArray content = row[2].isEmpty() ? row[1] : projected(row[1], row[2], row[3]);
            add("files", row[0], row[4].isEmpty() ? content : content.replace(row[4], row[5]));
        }
        add("files", "long name.prj", projected('"' + QByteArray(700, 'n') + '"'));
        add("files", "huge.txt", projected("\"Huge\"") + QByteArray(3 << 20, ' '));
        add("files", "blanks.txt", QByteArray(5000, ' '));
        add("files", "huge rubbish.txt", QByteArray(2 << 20, '['));
        add("files", "deep.txt", QByteArray("PROJCS[").repeated(20000));
        for (const char* name : {"walk-model.ggf", "walk-model.vgf", "walk-größe %1.ggf", "walk-<b>.ggf"})
            add("models", name, name);
        lists["models"] << "models/walk-missing.ggf";
    }

    /// 0 to `below` - 1.
    int pick(int below) { return random.bounded(below); }
    bool oneIn(int count) { return pick(count) == 0; }
    template <class List> auto anyOf(const List& list) { return list[pick(list.size())]; }

    /// Few names, so that they collide; many that a careless conversion would break.
    QString name() { return anyOf(lists[oneIn(3) ? "odd names" : "names"]); }
    QString number() {
        switch (pick(7)) {
        case 0:
            return QString::number(random.generateDouble() * 360.0 - 180.0, 'g', 1 + pick(17));
        case 1:
            return QString::number(0.98 + random.generateDouble() * 0.04, 'f', 1 + pick(12));
        case 2:
            return anyOf(lists["angles"]);
        case 3:
            return anyOf(lists["odd numbers"]);
        default:
            return anyOf(lists["numbers"]);
        }
    }
    QString searchText() { return anyOf(lists["searches"]); }
    QString ellipsoidName() { return anyOf(lists["ellipsoids"]); }
    /// Of WKT files, good and bad, a folder and one that does not exist.
    QString wktFile() { return folder + '/' + anyOf(lists["files"]); }
    QString modelFile() { return folder + '/' + anyOf(lists["models"]); }
    QString targetFile() { return folder + '/' + anyOf(lists["target files"]); }

private:
    /// `name` is in quotes.
    static QByteArray projected(const QByteArray& name, const QByteArray& method = "Transverse_Mercator",
                                const QByteArray& more = "") {
        return "PROJCS[" + name +
               R"(,GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
               R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]],PROJECTION[")" +
               method + R"("],)" + more +
               R"(PARAMETER["latitude_of_origin",40],PARAMETER["central_meridian",9],)"
               R"(PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
               R"(UNIT["metre",1]])";
    }

    void add(const char* list, const QString& name, const QByteArray& content) {
        lists[list] << QString(list) + '/' + name;
        setContent(folder + '/' + lists[list].last(), content);
    }

    QRandomGenerator random;
    QString folder;
    QMap<QByteArray, QStringList> lists;
};
