#include "panel/computing/Identification.h"

#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

namespace {

/// The first of the matches, and what differs.
QByteArray textOf(const std::vector<RegistryMatch>& matches) {
    if (matches.empty())
        return "none";
    const RegistryMatch& first = matches.front();
    QByteArray text = first.system->code + (first.distance <= RegistryMatch::exactly ? " exact" : "");
    const auto number = [](double value) { return QByteArray::number(value, 'g', 12); };
    for (const RegistryMatch::Difference& difference : first.differences)
        text += ' ' + difference.item + ' ' + number(difference.here) + " there " + number(difference.there);
    return text;
}

} // namespace

class IdentificationTest : public QObject {
    Q_OBJECT

    Identification identification{*projectionModule()};

private Q_SLOTS:
    void identified_data() { textRows("identification.txt"); }
    void identified() {
        const auto [title, record, datum, name, code, same, nearest] = textRow<7>();
        const DictionaryGuard changed = PanelRecords::of(record);
        identification.start({coordParamToProjDefine(*changed), datum, name, code});
        while (!identification.advance(1)) {
        }
        QCOMPARE(textOf(identification.same()), same);
        QCOMPARE(textOf(identification.nearest()), nearest);
    }
};

ROOM_TEST(IdentificationTest)
#include "IdentificationTest.moc"
