// The lenient number reading every numeric line of a file goes through, and
// the rounding that stores its result.
#include <cmath>

#include "conversions.h"
#include "fuzz.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const auto number = NumericPrefix(fuzz::AnsiText(data, size));
    if (!number)
        return 0;
    FUZZ_CHECK(std::isfinite(*number));
    const auto to16 = RoundToInt16(*number);
    const auto to32 = RoundToInt32(*number);
    if (to32) {
        FUZZ_CHECK(std::fabs(*to32 - *number) <= 0.5);
        // The decimal text of a stored number reads back as that number.
        FUZZ_CHECK(NumericPrefix(NumberText(*to32)) == static_cast<double>(*to32));
    }
    if (to16)
        FUZZ_CHECK(to32 && *to32 == *to16);
    FUZZ_CHECK(!to32 || to16 || *to32 < -32768 || *to32 > 32767);
    return 0;
}
