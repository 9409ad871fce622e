#include "panel/registry/RegistryModel.h"

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(RegistryModel::Search)

namespace {

IEpsgRegistry& registry() {
    return projectionModule()->registry();
}

} // namespace

class RegistryModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void registrySearch_data() {
        const Rows<RegistryModel::Search, QByteArrayList, QByteArrayList> row({"search", "found", "missing"});
        const std::optional<double> none;
        row("all", {"", none, none, false}, {"27700", "32633", "3857"}, {"2171"});
        row("deprecated too", {"", none, none, true}, {"27700", "2171"}, {});
        row("code", {"2770", none, none, false}, {"27700"}, {"32633"});
        row("words of the name in any order and case", {"GRID british NATIONAL", none, none, false}, {"27700"},
            {"32633"});
        row("words of the area", {"netherlands onshore", none, none, false}, {"28992"}, {"27700"});
        row("no such word", {"qwertz", none, none, false}, {}, {"27700"});
        row("point", {"", 52.0, 5.0, false}, {"28992", "32631"}, {"27700", "32633"});
        row("point across the antimeridian", {"", -18.0, 179.9, false}, {"3460"}, {"28992"});
        row("point beyond the antimeridian", {"", -18.0, -179.5, false}, {"3460"}, {"28992"});
        row("the same point counted west", {"", -18.0, -180.1, false}, {"3460"}, {"28992"});
        row("point to the north of it", {"", 60.0, 5.0, false}, {"32631"}, {"28992"});
        row("point counted once round", {"", 52.0, 365.0, false}, {"28992"}, {"27700"});
        row("half a point is none", {"", 52.0, none, false}, {"27700", "32633"}, {});
    }

    void registrySearch() {
        QFETCH(RegistryModel::Search, search);
        QFETCH(QByteArrayList, found);
        QFETCH(QByteArrayList, missing);
        RegistryModel model(registry());
        model.setSearch(search);
        for (const QByteArray& code : found)
            QVERIFY2(model.rowOf(code) >= 0, code);
        for (const QByteArray& code : missing)
            QVERIFY2(model.rowOf(code) < 0, code);
        QCOMPARE(model.rowCount() > 0, !found.isEmpty());
    }

    /// What is not grey gives a record that defines a projection (every 40th system).
    void registryKnowsWhatIsHeld() {
        RegistryModel model(registry());
        RegistryModel::Search search;
        search.deprecatedToo = true;
        model.setSearch(search);
        int held = 0;
        int grey = 0;
        for (int row = 0; row < model.rowCount(); row += 40) {
            const RegistrySystem& system = model.system(row);
            const DictionaryGuard record;
            const bool defines = WktToCoordParam::write(registry().wkt(system.code, nullptr), record.get()) &&
                                 coordParamDefinesProjection(*record);
            QVERIFY2(defines == model.reason(system).isEmpty(), system.code);
            ++(defines ? held : grey);
        }
        QVERIFY(held > 100 && grey > 2);
        const auto reason = [&](const char* code) { return model.reason(model.system(model.rowOf(code))); };
        QVERIFY(reason("29873").startsWith("The grid is turned by 53.1301023611111°"));
        QVERIFY(reason("8045").endsWith("but: south, west."));
        QVERIFY(reason("3774").startsWith("A unit is missing")); // a scale in metres
    }

    /// Rows turn grey behind their first look, and the view is told; those that a search took out of sight are left.
    void whatIsNotHeldTurnsGrey() {
        RegistryModel model(registry());
        const auto cell = [&](const char* code) { return model.index(model.rowOf(code), RegistryModel::Name); };
        const auto isGrey = [&](const char* code) { return cell(code).data(Qt::ForegroundRole).isValid(); };
        QSignalSpy repainted(&model, &RegistryModel::dataChanged);
        QVERIFY(!isGrey("5514") && !isGrey("32633"));
        QTRY_COMPARE(repainted.size(), 1);
        QVERIFY(repainted[0][0].value<QModelIndex>() == cell("5514").siblingAtColumn(0));
        QVERIFY(repainted[0][1].value<QModelIndex>() == cell("5514").siblingAtColumn(RegistryModel::ColumnCount - 1));
        QVERIFY(isGrey("5514") && !isGrey("32633"));
        QVERIFY(!isGrey("29873"));
        model.setSearch({"5514", std::nullopt, std::nullopt, false});
        QVERIFY(isGrey("5514"));
        model.setSearch({});
        QVERIFY(!isGrey("29873"));
        QTRY_VERIFY(isGrey("29873"));
    }
};

ROOM_TEST(RegistryModelTest)
#include "RegistryModelTest.moc"
