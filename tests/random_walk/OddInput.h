#pragma once

#include "support/Files.h"
#include "support/TextTable.h"

#include <QDir>
#include <QRandomGenerator>
#include <QStringList>

/// What a person may type, paste or choose: sensible things, half things and odd things.
class OddInput {
public:
    /// Writes the files that can be chosen below the folder `folder`.
    OddInput(quint32 seed, const QString& folder) : random(seed), folder(folder) {
        for (const char* each : {"files/a folder.prj", "models", "saved"})
            QDir(folder).mkpath(each);
        for (const QByteArrayList& row : textTable("files.txt")) {
            QByteArray content = projected(row[1], row[2], row[3]);
            addWkt(row[0], row[4].isEmpty() ? content : content.replace(row[4], row[5]));
        }
        const std::pair<const char*, QByteArray> odd[] = {
            {"again.txt", projected("\"UTM zone 32N\"") + "\r\n \r\n"},
            {"gbk.prj", projected("\"\xb1\xb1\xbe\xa9 54\"")},
            {"long name.prj", projected('"' + QByteArray(700, 'n') + '"')},
            {"control.prj", projected("\"tab\there\x01\"")},
            {"bom.prj", "\xEF\xBB\xBF" + projected("\"Bom\"")},
            {"nul.prj", projected("\"Nul\"") + QByteArray(1, '\0') + "PROJCS[garbage"},
            {"nul first.prj", QByteArray(1, '\0') + projected("\"Hidden\"")},
            {"nul in name.prj", projected(QByteArray("\"Nu\0l\"", 6))},
            {"geographic.prj", geographic},
            {"truncated.prj", projected("\"Truncated\"").left(200)},
            {"empty.prj", ""},
            {"blanks.txt", QByteArray(5000, ' ')},
            {"rubbish.txt", "PROJCS[\"x\",\x01\x02\xff"},
            {"huge.txt", projected("\"Huge\"") + QByteArray(3 << 20, ' ')},
            {"huge rubbish.txt", QByteArray(2 << 20, '[')},
            {"deep.txt", QByteArray("PROJCS[").repeated(20000)},
            {"epsg.txt", "EPSG:25832"},
            {"proj.txt", "+proj=utm +zone=32 +datum=WGS84"},
            {"wkt2.prj",
             R"(PROJCRS["Wkt two",BASEGEOGCRS["WGS 84",DATUM["World Geodetic System 1984",ELLIPSOID["WGS 84",)"
             R"(6378137,298.257223563]]],CONVERSION["UTM zone 33N",METHOD["Transverse Mercator"],)"
             R"(PARAMETER["Longitude of natural origin",15,ANGLEUNIT["degree",0.0174532925199433]],)"
             R"(PARAMETER["Scale factor at natural origin",0.9996],PARAMETER["False easting",500000]],)"
             R"(CS[Cartesian,2],AXIS["Easting",east],AXIS["Northing",north],LENGTHUNIT["metre",1]])"},
        };
        for (const auto& [name, content] : odd)
            addWkt(name, content);
        for (const char* name : {"walk-model.ggf", "walk-model.vgf", "walk-größe %1.ggf", "walk-<b>.ggf"}) {
            models << folder + "/models/" + name;
            setContent(models.last(), name);
        }
        models << folder + "/models/walk-missing.ggf";
    }

    /// 0 to `below` - 1.
    int pick(int below) { return random.bounded(below); }
    bool oneIn(int count) { return pick(count) == 0; }
    template <class List> auto anyOf(const List& list) { return list[pick(list.size())]; }

    /// Few names, so that they collide; many that a careless conversion would break.
    QString name() {
        static const QStringList plain = texts("A|B|C|D|E|F|G");
        static const QStringList odd =
            texts("| |x,y|100 %s%n|é%1|<b>bold</b>|<&>\"'|&amp;|A |a|..|a/b\\c:*?|北京 54|שלום|CoordSysGroup|tab\there|"
                  "new\nline|bell\x07|🗺 map|]]>|WGS 84")
            << QString(QChar(0xD83D)) << QString("nul") + QChar(0) + "end" << QString(300, 'w')
            << QString(QChar(QChar::LineSeparator)) + "x";
        return anyOf(oneIn(3) ? odd : plain);
    }

    QString number() {
        static const QStringList plain = texts("0|1|9|15|-45.5|45|90|-90|180|-180|3.5|0.9996|0.99|500000|-1000|6378137|"
                                               "298.257223563|6377397.155|299.1528128|41.5|1.0001|0.5");
        static const QStringList angles = texts("9°30'|9 30 15.5|12:30:59.99|45N|45°30'S|7 30 W|90°0'0.0001\"|"
                                                "179°59'59.99999999\"|-0:0:0.5|12:60:00|1°2°3|E 15°");
        static const QStringList odd =
            texts(
                "|-|.|abc|1e400|nan|inf|-inf|--5|1,5|5 5|1e|0x10|١٢٣|1e-320|−5|1e300|-1e300|%s|½|1e-9| 7 |+7|5\n6|1e5|"
                "99999999999999999999999|0.00000000000000000001|180.0000001")
            << QString(400, '9') << QString("5") + QChar(0) + "6";
        switch (pick(7)) {
        case 0:
            return QString::number(random.generateDouble() * 360.0 - 180.0, 'g', 1 + pick(17));
        case 1:
            return QString::number(0.98 + random.generateDouble() * 0.04, 'f', 1 + pick(12));
        case 2:
            return anyOf(angles);
        case 3:
            return anyOf(odd);
        default:
            return anyOf(plain);
        }
    }

    QString searchText() {
        static const QStringList all =
            texts("25832|3857|utm zone 33n|lambert|Gauss|swiss|x x x||(|[a-z|27700|\\|oblique|"
                  "polar stereographic|米");
        return anyOf(all);
    }

    QString ellipsoidName() {
        static const QStringList all = texts("wgs 84|bessel|inter|a||(|clarke 66|\\E|zzz|Krass");
        return anyOf(all);
    }

    /// Of WKT files, good and bad, a folder and one that does not exist.
    QString wktFile() { return anyOf(wktFiles); }
    QString modelFile() { return anyOf(models); }
    QString targetFile() {
        static const QStringList all =
            texts("saved/one.prj|saved/two|saved/ö %1.prj|no such folder/x.prj|files/a folder.prj|saved");
        return folder + '/' + anyOf(all);
    }

private:
    /// `name` is in quotes.
    static QByteArray projected(const QByteArray& name, const QByteArray& method = "Transverse_Mercator",
                                const QByteArray& more = "") {
        return "PROJCS[" + name + "," + geographic + ",PROJECTION[\"" + method + "\"]," + more +
               R"(PARAMETER["latitude_of_origin",40],PARAMETER["central_meridian",9],)"
               R"(PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
               R"(UNIT["metre",1]])";
    }

    static QStringList texts(const char* joined) { return QString::fromUtf8(joined).split('|'); }

    void addWkt(const QString& name, const QByteArray& content) {
        wktFiles << folder + "/files/" + name;
        setContent(wktFiles.last(), content);
    }

    static constexpr const char* geographic =
        R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
        R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])";

    QRandomGenerator random;
    QString folder;
    QStringList wktFiles{folder + "/files/a folder.prj", folder + "/files/missing.prj"};
    QStringList models;
};
