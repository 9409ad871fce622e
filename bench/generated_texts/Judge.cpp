#include "Judge.h"

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"

#include <algorithm>
#include <cstdio>

namespace {

/// What the tool computes with after an import; empty for nothing.
QByteArray import(const QByteArray& wkt) {
    const DictionaryGuard record;
    return WktToCoordParam::write(wkt, record.get()) ? coordParamToProjDefine(*record) : QByteArray();
}

} // namespace

void Count::add(const Count& other) {
    texts += other.texts;
    right += other.right;
    withheld += other.withheld;
    wrong += other.wrong;
}

void Count::print(const char* name) const {
    std::printf("%-60s %8d %8d %8d %6.2f%% %8d\n", name, texts, right, withheld, 100.0 * withheld / std::max(1, texts),
                wrong);
}

void Count::printHead() {
    std::printf("%-60s %8s %8s %16s %8s\n", "", "texts", "right", "withheld", "wrong");
}

Count Judge::judge(const QByteArray& title, Expectation expectation, const GeneratedText& generated) const {
    const QByteArray wkt = generated.text.write();
    const QByteArray definition = import(wkt);
    if (definition.isEmpty())
        return expectation == Expectation::Says ? Count{1, 0, 1, 0} : Count{1, 1, 0, 0};
    const double deviation = oracle.deviation(generated.meaning, definition);
    if (expectation != Expectation::Doubtful && deviation <= generated.tolerance)
        return {1, 1, 0, 0};
    std::printf("WRONG %s, %g m\n  %s\n  says %s\n  read %s\n", title.constData(), deviation, wkt.constData(),
                expectation == Expectation::Doubtful ? "nothing for certain"
                                                     : generated.meaning.definition().constData(),
                definition.constData());
    return {1, 0, 0, 1};
}
