#include "VariationRun.h"

#include "Variation.h"

#include <cstdio>

VariationRun::VariationRun(unsigned long long seed) : random(seed), byVariation(Variation::all().size()) {
}

bool VariationRun::run(int count) {
    for (int i = 0; i < count; ++i)
        next(i % byVariation.size());
    Count::printHead();
    for (auto method = byMethod.begin(); method != byMethod.end(); ++method)
        method->print(method.key().constData());
    std::printf("\n");
    Count all;
    for (int i = 0; i < byVariation.size(); ++i) {
        byVariation[i].print(Variation::all()[i].name);
        all.add(byVariation[i]);
    }
    all.print("all");
    return all.wrong == 0;
}

void VariationRun::next(int variation) {
    for (;;) {
        GeneratedText generated = TextGenerator::generate(random);
        const auto expectation = Variation::all()[variation].apply(generated, random);
        if (!expectation || !judge.canJudge(generated.meaning))
            continue;
        const Count count = judge.judge(Variation::all()[variation].name, *expectation, generated);
        byVariation[variation].add(count);
        byMethod[generated.method].add(count);
        return;
    }
}
