// Any text as a number: what is stored is what was read, and what is shown can be typed again.

#include "panel/record/NumberText.h"
#include "support/Support.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    double number = 0.0, again = 0.0;
    QString plain, ignored;
    if (!NumberText::parse(text, &number, &plain))
        return 0;
    require(std::isfinite(number), "a number is finite");
    require(NumberText::parse(plain, &again, &ignored) && again == number, "what is stored is what was read");
    require(NumberText::parse(NumberText::shortest(number), &again, &ignored) && again == number,
            "what is shown is what was read");
    return 0;
}
