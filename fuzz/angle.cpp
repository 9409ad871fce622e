// Any text as an angle: what is stored is what was read, and what is shown can be typed again.

#include "panel/record/AngleText.h"
#include "panel/record/NumberText.h"
#include "support/Support.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    for (const AngleRole role : {AngleRole::Latitude, AngleRole::Longitude, AngleRole::Azimuth}) {
        const AngleInput input = AngleText::parse(text, role);
        require(input.valid == input.reason.isEmpty(), "a refusal has a reason");
        if (!input.valid)
            continue;
        double stored = 0.0;
        QString plain;
        require(NumberText::parse(input.decimal, &stored, &plain), "what is stored is a number");
        require(stored == input.degrees, "what is stored is what was read");
        for (const AngleNotation notation : {AngleNotation::DecimalDegrees, AngleNotation::DegreesMinutesSeconds}) {
            const AngleInput shown = AngleText::parse(AngleText::format(input.degrees, notation), role);
            // No angle has an exponent.
            if (std::fabs(input.degrees) < 1e4 && (input.degrees == 0.0 || std::fabs(input.degrees) > 1e-12)) {
                require(shown.valid, "what is shown can be typed");
                // The last digit shown, and the last bits of a number that is many turns.
                require(std::fabs(shown.degrees - input.degrees) <= 3e-12 + 4.5e-16 * std::fabs(input.degrees),
                        "what is shown is what was read");
            }
        }
    }
    return 0;
}
