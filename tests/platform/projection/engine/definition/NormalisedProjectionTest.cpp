#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>

namespace {

const QByteArray noShift = " +towgs84=0,0,0,0,0,0,0 +units=m +no_defs";

/// The first longitude that a normalised definition names.
double longitudeOf(const QByteArray& definition) {
    const int at = definition.indexOf('=', definition.indexOf("+lon")) + 1;
    return definition.mid(at, definition.indexOf(' ', at) - at).toDouble();
}

/// The distance between what two definitions make of one place, in the given one's unit; infinite when one of them
/// can't.
double distance(const QByteArray& left, const QByteArray& right, double longitude, double latitude) {
    const ProjObject a(proj_create(nullptr, left.constData()));
    const ProjObject b(proj_create(nullptr, right.constData()));
    if (!a || !b)
        return HUGE_VAL;
    const PJ_COORD place = proj_coord(proj_torad(longitude), proj_torad(latitude), 0, 0);
    const PJ_COORD p = proj_trans(a.get(), PJ_FWD, place);
    const PJ_COORD q = proj_trans(b.get(), PJ_FWD, place);
    return std::hypot(p.xy.x - q.xy.x, p.xy.y - q.xy.y);
}

} // namespace

class NormalisedProjectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(projectionModule(), "the module lies in ../lib");
        proj_log_level(nullptr, PJ_LOG_NONE);
    }

    void normalised_data() { textRows("normalised.txt"); }
    void normalised() {
        const auto [title, given, expected] = textRow<3>();
        QCOMPARE(define(given), expected + noShift);
        QCOMPARE(define(define(given)), define(given));
        const QByteArray shiftless = QByteArray(given).replace("+nadgrids=@null", "").replace("+datum=", "+ellps=");
        QByteArray held = expected + (given.contains("us-ft") ? " +units=us-ft" : "");
        held += given.contains("to_meter") ? " +to_meter=0.3047972654" : given.contains("neu") ? " +axis=neu" : "";
        const double latitude = given.contains("lat_0=-90") || given.contains("south") ? -70 : 47;
        QVERIFY(distance(shiftless, held, longitudeOf(expected) + 2, latitude) < 1e-6);
    }

    /// Held at the latitudes where PROJ's omerc is off by decimetres, too.
    void azimuth90() {
        for (const char* const latitude : {"45", "46.5", "33.3", "50.1", "47.1"}) {
            const QByteArray place = QByteArray(" +lat_0=") + latitude + " +x_0=600000 +y_0=200000 +ellps=bessel";
            for (const char* const projection :
                 {"somerc +lon_0=7.5", "omerc +lonc=7.5 +alpha=90 +gamma=90", "omerc +lonc=7.5 +alpha=90 +no_uoff",
                  "omerc +lonc=7.5 +alpha=-90 +no_uoff"}) {
                const QByteArray held = define("+proj=" + (projection + place));
                QVERIFY2(held.startsWith("+proj=omerc") && held.contains(" +lonc=7.5 "), held.constData());
            }
            QVERIFY(!define("+proj=omerc +lonc=7.5 +alpha=90 +gamma=89.999" + place).contains("+proj="));
        }
    }

    void undefined_data() { textRows("undefined.txt"); }
    void undefined() {
        const auto [title, given] = textRow<2>();
        const QByteArray text = define(given);
        QVERIFY2(!text.isEmpty() && !text.contains("proj=") && !text.contains("k_0=") && !text.contains("nan"),
                 text.constData());
        QVERIFY2(text.startsWith("+lat_") || text.startsWith("+lon"), text.constData());
    }

    void plainDefinitionsComputeTheSame_data() { textRows("patterns.txt"); }
    void plainDefinitionsComputeTheSame() {
        const auto [pattern] = textRow<1>();
        QRandomGenerator random(20);
        const QList<QByteArray> ends{" +ellps=GRS80",
                                     " +ellps=bessel +pm=ferro",
                                     " +a=6378249.2 +b=6356515",
                                     " +R=6370997",
                                     " +ellps=clrk66 +units=us-ft",
                                     " +a=6378300 +rf=296 +pm=9.5",
                                     " +ellps=intl +to_meter=0.3047972654 +pm=jakarta"};
        const auto number = [&random](double from, double to) {
            return QByteArray::number(from + random.generateDouble() * (to - from), 'g', 15);
        };
        for (const QByteArray& end : ends) {
            // PROJ has no UTM on a sphere.
            if (pattern.contains("utm") && end.contains("+R="))
                continue;
            const double latitude = 20 + random.generateDouble() * 40;
            QByteArray given = pattern + end;
            while (given.contains("%lat"))
                given.replace(given.indexOf("%lat"), 4, number(latitude - 2, latitude + 2));
            given.replace("%lon", number(-180, 180)).replace("%k", number(0.9, 1.1)).replace("%x", number(-1e7, 1e7));
            given.replace("%alpha", number(-80, 400)).replace("%zone", QByteArray::number(random.bounded(1, 61)));
            QByteArray held = define(given);
            QVERIFY2(held.startsWith("+proj="), given.constData());
            held.replace(" +towgs84=0,0,0,0,0,0,0 +units=m", given.contains(" +units=us-ft") ? " +units=us-ft"
                                                             : given.contains(" +to_meter")  ? " +to_meter=0.3047972654"
                                                                                             : "");
            const double longitude = longitudeOf(held);
            for (const double offset : {-2.0, 0.5, 3.0}) {
                const double away = distance(given, held, longitude + offset, latitude + offset);
                QVERIFY2(away < 1e-6,
                         qPrintable(QString("%1 in %2 against %3").arg(away).arg(given.constData(), held.constData())));
            }
        }
    }
};

ROOM_TEST(NormalisedProjectionTest)
#include "NormalisedProjectionTest.moc"
