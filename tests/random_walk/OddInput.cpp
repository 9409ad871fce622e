#include "OddInput.h"

#include <QDir>
#include <QFile>

namespace {

const QByteArray geographic = R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
                              R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])";

QByteArray projected(const QByteArray& name, const QByteArray& method = "Transverse_Mercator",
                     const QByteArray& more = "") {
    return "PROJCS[\"" + name + "\"," + geographic + ",PROJECTION[\"" + method + "\"]," + more +
           R"(PARAMETER["latitude_of_origin",40],PARAMETER["central_meridian",9],)"
           R"(PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
           R"(UNIT["metre",1]])";
}

QStringList texts(const char* joined) {
    return QString::fromUtf8(joined).split('|');
}

} // namespace

OddInput::OddInput(quint32 seed, const QString& folder) : random(seed), folder(folder) {
    QDir(folder).mkpath("files/a folder.prj");
    wktFiles = QStringList{"files/a folder.prj", "files/missing.prj"};
    const QByteArray parallels = R"(PARAMETER["standard_parallel_1",35],PARAMETER["standard_parallel_2",55],)";
    const QByteArray shifted = QByteArray(projected("Shifted"))
                                   .replace("]],PRIMEM", "],TOWGS84[598.1,73.7,418.2,0.202,0.045,-2.455,6.7]],PRIMEM");
    const QList<QPair<QString, QByteArray>> files{
        {"utm.prj", projected("UTM zone 32N")},
        {"again.txt", projected("UTM zone 32N") + "\r\n \r\n"},
        {"lambert.prj", projected("Lambert", "Lambert_Conformal_Conic_2SP", parallels)},
        {"lambert one.prj", projected("Lambert one", "Lambert_Conformal_Conic_1SP")},
        {"mercator.prj", projected("Mercator", "Mercator_1SP")},
        {"mercator two.prj", projected("Mercator two", "Mercator_2SP", R"(PARAMETER["standard_parallel_1",41],)")},
        {"cassini.prj", projected("Cassini", "Cassini_Soldner")},
        {"stereographic.prj", projected("Stereographic", "Oblique_Stereographic")},
        {"polar.prj", projected("Polar", "Polar_Stereographic")},
        {"hotine.prj", projected("Hotine", "Hotine_Oblique_Mercator_Azimuth_Center",
                                 R"(PARAMETER["azimuth",45],PARAMETER["rectified_grid_angle",45],)")},
        {"albers.prj", projected("Albers", "Albers_Conic_Equal_Area", parallels)},
        {"unknown method.prj", projected("Unknown", "No_Such_Method")},
        {"shifted.prj", shifted},
        {"feet.prj", QByteArray(projected("Feet")).replace("UNIT[\"metre\",1]", "UNIT[\"US survey foot\",0.3048006]")},
        {"no units.prj", QByteArray(projected("No units")).replace(",UNIT[\"metre\",1]", "")},
        {"nan.prj", QByteArray(projected("NaN")).replace("0.9996", "nan")},
        {"infinite.prj", QByteArray(projected("Infinite")).replace("500000", "1e999")},
        {"no ellipsoid.prj", QByteArray(projected("No axis")).replace("6378137", "0")},
        {"commas.prj", projected("A,B,C")},
        {"markup.prj", projected("<b>bold</b> &amp; <img src='x'>")},
        {"percent.prj", projected("100 %s%n")},
        {"umlaut.prj", projected("Österreich")},
        {"gbk.prj", projected("\xb1\xb1\xbe\xa9 54")},
        {"long name.prj", projected(QByteArray(700, 'n'))},
        {"no name.prj", projected("")},
        {"blank name.prj", projected(" ")},
        {"control.prj", projected("tab\there\x01")},
        {"bom.prj", "\xEF\xBB\xBF" + projected("Bom")},
        {"nul.prj", projected("Nul") + QByteArray(1, '\0') + "PROJCS[garbage"},
        {"nul first.prj", QByteArray(1, '\0') + projected("Hidden")},
        {"nul in name.prj", projected(QByteArray("Nu\0l", 4))},
        {"geographic.prj", geographic},
        {"truncated.prj", projected("Truncated").left(200)},
        {"empty.prj", ""},
        {"blanks.txt", QByteArray(5000, ' ')},
        {"rubbish.txt", "PROJCS[\"x\",\x01\x02\xff"},
        {"huge.txt", projected("Huge") + QByteArray(3 << 20, ' ')},
        {"huge rubbish.txt", QByteArray(2 << 20, '[')},
        {"deep.txt", QByteArray("PROJCS[").repeated(20000)},
        {"epsg.txt", "EPSG:25832"},
        {"proj.txt", "+proj=utm +zone=32 +datum=WGS84"},
        {"wkt2.prj", R"(PROJCRS["Wkt two",BASEGEOGCRS["WGS 84",DATUM["World Geodetic System 1984",ELLIPSOID["WGS 84",)"
                     R"(6378137,298.257223563]]],CONVERSION["UTM zone 33N",METHOD["Transverse Mercator"],)"
                     R"(PARAMETER["Longitude of natural origin",15,ANGLEUNIT["degree",0.0174532925199433]],)"
                     R"(PARAMETER["Scale factor at natural origin",0.9996],PARAMETER["False easting",500000]],)"
                     R"(CS[Cartesian,2],AXIS["Easting",east],AXIS["Northing",north],LENGTHUNIT["metre",1]])"},
    };
    for (const auto& file : files) {
        writeFile("files/" + file.first, file.second);
        wktFiles << "files/" + file.first;
    }
    for (const char* name : {"walk-model.ggf", "walk-model.vgf", "walk-größe %1.ggf", "walk-<b>.ggf"}) {
        writeFile(QString("models/") + name, name);
        modelFiles << QString("models/") + name;
    }
    modelFiles << "models/walk-missing.ggf";
}

void OddInput::writeFile(const QString& name, const QByteArray& content) {
    QFile file(folder + '/' + name);
    QDir().mkpath(QFileInfo(file).path());
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

QString OddInput::name() {
    static const QStringList plain = texts("A|B|C|D|E|F|G");
    static const QStringList odd =
        texts("| |x,y|100 %s%n|é%1|<b>bold</b>|<&>\"'|&amp;|A |a|..|a/b\\c:*?|北京 54|שלום|CoordSysGroup|tab\there|"
              "new\nline|bell\x07|🗺 map|]]>|WGS 84")
        << QString(QChar(0xD83D)) << QString("nul") + QChar(0) + "end" << QString(300, 'w')
        << QString(QChar(QChar::LineSeparator)) + "x";
    return anyOf(oneIn(3) ? odd : plain);
}

QString OddInput::number() {
    static const QStringList plain = texts("0|1|9|15|-45.5|45|90|-90|180|-180|3.5|0.9996|0.99|500000|-1000|6378137|"
                                           "298.257223563|6377397.155|299.1528128|41.5|1.0001|0.5");
    static const QStringList angles = texts("9°30'|9 30 15.5|12:30:59.99|45N|45°30'S|7 30 W|90°0'0.0001\"|"
                                            "179°59'59.99999999\"|-0:0:0.5|12:60:00|1°2°3|E 15°");
    static const QStringList odd =
        texts("|-|.|abc|1e400|nan|inf|-inf|--5|1,5|5 5|1e|0x10|١٢٣|1e-320|−5|1e300|-1e300|%s|½|1e-9| 7 |+7|5\n6|1e5|"
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

QString OddInput::searchText() {
    static const QStringList all = texts("25832|3857|utm zone 33n|lambert|Gauss|swiss|x x x||(|[a-z|27700|\\|oblique|"
                                         "polar stereographic|米");
    return anyOf(all);
}

QString OddInput::ellipsoidName() {
    static const QStringList all = texts("wgs 84|bessel|inter|a||(|clarke 66|\\E|zzz|Krass");
    return anyOf(all);
}

QString OddInput::wktFile() {
    return folder + '/' + anyOf(wktFiles);
}

QString OddInput::modelFile() {
    return folder + '/' + anyOf(modelFiles);
}

QString OddInput::targetFile() {
    static const QStringList all =
        texts("saved/one.prj|saved/two|saved/ö %1.prj|no such folder/x.prj|files/a folder.prj|saved");
    QDir(folder).mkpath("saved");
    return folder + '/' + anyOf(all);
}
