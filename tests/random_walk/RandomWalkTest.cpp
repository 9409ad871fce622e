#include "RandomUser.h"
#include "WalkRules.h"
#include "catalogue/DictionaryGuard.h"
#include "support/OwnHome.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtTest>
#include <QtWidgets>

namespace {

// QtTest allows a function five minutes, and reads this before it starts one.
const bool isUnhurried = qputenv("QTEST_FUNCTION_TIMEOUT", "100000000");

QtMessageHandler messageHandler = nullptr;

/// Qt's offscreen platform says with every dialog what it does not support.
void withoutPlatformMessages(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support"))
        messageHandler(type, context, text);
}

} // namespace

/// Thousands of steps of a person without a plan: after each of them the tree, the catalogue, the panel, the files and
/// the Save button agree, and nothing is left over.
class RandomWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void walk_data() {
        const Rows<quint32, int> row({"seed", "steps"});
        if (!qEnvironmentVariableIsSet("RANDOM_WALK_SEED")) {
            row("always the same", fixedSeed, 500);
            row("today's", quint32(QDate::currentDate().toString("yyyyMMdd").toUInt()), 500);
            return;
        }
        // Many walks, so that each can be repeated in a minute.
        quint32 seed = quint32(qEnvironmentVariableIntValue("RANDOM_WALK_SEED"));
        int steps = qMax(1, qEnvironmentVariableIntValue("RANDOM_WALK_STEPS"));
        for (; steps > 0; steps -= longestWalk, ++seed)
            row(QByteArray::number(seed), seed, qMin(steps, longestWalk));
    }

    void walk() {
        QFETCH(quint32, seed);
        QFETCH(int, steps);
        QVERIFY(isUnhurried);
        messageHandler = qInstallMessageHandler(withoutPlatformMessages);
        qInfo("RANDOM_WALK_SEED=%u RANDOM_WALK_STEPS=%d", seed, steps);
        startAsNew();
        const OwnHome home;
        ToolOnScreen tool(home.path());
        writeCatalogue(tool.dataFolder);
        tool.start();
        WalkRules rules(tool);
        RandomUser user(tool, seed, home.path());

        QMap<QByteArray, int> effects;
        QStringList last;
        QFile log(qEnvironmentVariable("RANDOM_WALK_LOG"));
        log.open(QIODevice::Append | QIODevice::Unbuffered);
        for (int i = 0; i < steps; ++i) {
            rules.beginStep();
            const int systems = tool.items(2).count();
            user.step();
            last << QString("%1: %2").arg(i).arg(user.did());
            if (log.isOpen())
                log.write(last.last().toLocal8Bit() + '\n');
            last = last.mid(qMax(0, last.size() - 12));
            const QString broken = rules.broken();
            if (!broken.isEmpty()) {
                qWarning("Seed %u:\n%s", seed, qPrintable(last.join('\n')));
                QFAIL(qPrintable(broken));
            }
            ++effects[tool.items(2).count() < systems ? "fewer" : "no fewer"];
            ++effects[tool.saveButton->isEnabled() ? "dirty" : "clean"];
            ++effects[tool.panel->isEnabled() ? "shown" : "nothing to show"];
            for (const QWidget* map : tool.panel->findChildren<QWidget*>()) {
                if (map->inherits("AreaPlot") && map->isVisible())
                    ++effects[map->isEnabled() ? "map" : "no projection"];
            }
        }
        QStringList reached;
        for (auto effect = effects.begin(); effect != effects.end(); ++effect)
            reached << QString("%1 steps %2").arg(*effect).arg(QString::fromLatin1(effect.key()));
        qInfo("%s", qPrintable(reached.join(", ")));
        // A walk that never got anywhere would agree as well.
        if (seed == fixedSeed) {
            for (const char* effect : {"fewer", "dirty", "clean", "shown", "nothing to show", "map"})
                QVERIFY2(effects[effect] > 0, effect);
        }
    }

    void cleanup() { qInstallMessageHandler(messageHandler); }

    void cleanupTestCase() {
        QDir models(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/GeoidData");
        for (const QString& model : models.entryList({"walk-*"}))
            models.remove(model);
    }

private:
    static constexpr quint32 fixedSeed = 10;
    static constexpr int longestWalk = 2000;

    /// What a program has that has just been started, and an earlier walk may have changed.
    static void startAsNew() {
        static const QFont font = QApplication::font();
        QApplication::setStyle("fusion");
        QApplication::setPalette(QApplication::style()->standardPalette());
        QApplication::setFont(font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::clipboard()->clear();
        AngleText::setNotation(AngleNotation::DecimalDegrees);
    }

    /// A catalogue of the walk's own, whatever the tool ships: some shipped systems of every kind, and records as only
    /// a file can hold them.
    static void writeCatalogue(const QString& folder) {
        Catalogue shipped(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data", QString());
        shipped.load(folder.toLocal8Bit().constData());
        Catalogue own{QString(), QString()};
        for (const char* group : {"Odd", "B", "A"})
            own.addGroup(group);
        int count = 0;
        for (const QByteArray& group : QByteArray(shipped.getGroupNames()).split(',')) {
            ICoordSysGroup* const systems = shipped.getGroup(group.constData());
            for (const QByteArray& name : QByteArray(systems->getCoordSystemNames()).split(',')) {
                if (++count % 60 == 0)
                    own.getGroup(count % 120 ? "A" : "B")->addCoordSystem(systems->getCoordSystem(name.constData()));
            }
        }
        const QByteArray odd = "project_type=5|project_type=x|factor=nan|factor=1e400|ellipsoid_a=-1|ellipsoid_f=0|"
                               "ellipsoid_f=0.5|org_lon=|org_lat=100|_7type=9|geoid_name=none|false_east=1e300|"
                               "cutting_radius=-5|project_type=10|unknown=<kept>";
        for (const QByteArray& item : odd.split('|')) {
            const QByteArray key = item.split('=')[0], value = item.split('=')[1];
            const DictionaryGuard record;
            record->setText(CoordParamKey::name, key + ' ' + value);
            record->setText(CoordParamKey::ellipsoidName, "WGS 84");
            dic_set_value(record.get(), CoordParamKey::ellipsoidA, "%f", 6378137.0);
            dic_set_value(record.get(), CoordParamKey::ellipsoidF, "%f", 298.257223563);
            dic_set_value(record.get(), CoordParamKey::projectType, "%d", 1);
            for (const char* key :
                 {CoordParamKey::orgLon, CoordParamKey::orgLat, CoordParamKey::falseEast, CoordParamKey::falseNorth})
                dic_set_value(record.get(), key, "%f", 10.0);
            dic_set_value(record.get(), CoordParamKey::factor, "%f", 0.9999);
            record->setText(key, value);
            own.getGroup("Odd")->addCoordSystem(record.get());
        }
        QDir().mkpath(folder);
        own.load(QByteArray());
        own.saveCoordSystems("");
        own.saveCoordSystems((folder + "CoordinateSystem_custom.vcs").toLocal8Bit().constData());
    }
};

ROOM_TEST(RandomWalkTest)
#include "RandomWalkTest.moc"
