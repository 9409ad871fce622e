#include "SampleWkt.h"

QByteArray SampleWkt::wkt(const char* method, const char* parameters, const char* behind, const char* name) {
    return QByteArray("PROJCS[\"") + name +
           R"w(",GEOGCS["GCS_WGS_1984",DATUM["D_WGS_1984",SPHEROID["WGS_1984",6378137.0,298.257223563]],)w"
           R"w(PRIMEM["Greenwich",0.0],UNIT["Degree",0.0174532925199433]],PROJECTION[")w" +
           method + R"w("],PARAMETER["False_Easting",500000.0],PARAMETER["False_Northing",1000.0],)w" + parameters +
           ',' + behind + ']';
}

const char* const SampleWkt::transverseMercator =
    R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Scale_Factor",0.9999],PARAMETER["Latitude_Of_Origin",46.5])w";

QByteArray SampleWkt::polarWkt(const char* axes) {
    return QByteArray(R"w(PROJCRS["polar",BASEGEOGCRS["WGS 84",DATUM["World Geodetic System 1984",)w"
                      R"w(ELLIPSOID["WGS 84",6378137,298.257223563]]],CONVERSION["c",)w"
                      R"w(METHOD["Polar Stereographic (variant B)",ID["EPSG",9829]],)w"
                      R"w(PARAMETER["Latitude of standard parallel",70,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Longitude of origin",-45,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["False easting",0,LENGTHUNIT["metre",1]],)w"
                      R"w(PARAMETER["False northing",0,LENGTHUNIT["metre",1]]],CS[Cartesian,2],)w") +
           axes + R"w(,LENGTHUNIT["metre",1]])w";
}

QByteArray SampleWkt::boundWkt(const char* method, int sign) {
    QByteArray rotations;
    const auto rotation = [&](const char* axis, double seconds) {
        rotations +=
            QByteArray("PARAMETER[\"") + axis + "-axis rotation\"," + QByteArray::number(sign * seconds) + "],";
    };
    rotation("X", 0.1502);
    rotation("Y", 0.247);
    rotation("Z", 0.8421);
    return QByteArray(R"w(BOUNDCRS[SOURCECRS[PROJCRS["b",BASEGEOGCRS["x",DATUM["d",)w"
                      R"w(ELLIPSOID["Airy 1830",6377563.396,299.3249646,LENGTHUNIT["metre",1]]]],)w"
                      R"w(CONVERSION["c",METHOD["Transverse Mercator",ID["EPSG",9807]],)w"
                      R"w(PARAMETER["Latitude of natural origin",49,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Longitude of natural origin",-2,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Scale factor at natural origin",0.9996012717,SCALEUNIT["unity",1]],)w"
                      R"w(PARAMETER["False easting",400,LENGTHUNIT["kilometre",1000]],)w"
                      R"w(PARAMETER["False northing",-100,LENGTHUNIT["kilometre",1000]]],)w"
                      R"w(CS[Cartesian,2],AXIS["(E)",east],AXIS["(N)",north],LENGTHUNIT["metre",1]]],)w"
                      R"w(TARGETCRS[GEOGCRS["WGS 84",DATUM["World Geodetic System 1984",)w"
                      R"w(ELLIPSOID["WGS 84",6378137,298.257223563]],CS[ellipsoidal,2],AXIS["lat",north],)w"
                      R"w(AXIS["lon",east],ANGLEUNIT["degree",0.0174532925199433]]],)w"
                      R"w(ABRIDGEDTRANSFORMATION["t",METHOD[")w") +
           method +
           R"w("],PARAMETER["X-axis translation",446.448],PARAMETER["Y-axis translation",-125.157],)w"
           R"w(PARAMETER["Z-axis translation",542.06],)w" +
           rotations + R"w(PARAMETER["Scale difference",0.9999795106]]])w";
}
