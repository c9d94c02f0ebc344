#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "numbers/error_sink.h"

namespace tessarondel {

// Reading: $b / $o / $h literals to decimal text (15 digits); a token without
// "$" comes back unchanged. Errors: 0 for a bad prefix or digit, 11 for a
// failure during the conversion.
std::u16string BaseLiteralToDecimal(std::u16string_view token, ErrorSink& errors);
std::u16string BaseTextToDecimal(std::u16string_view digits, std::int32_t base, ErrorSink& errors);
std::int32_t BaseDigitValue(std::u16string_view digit, std::int32_t base, ErrorSink& errors);

// Writing: one lower-case digit for 0..15, empty text otherwise.
std::u16string BaseDigitText(std::int32_t value);
// x in the given base, lower-case, "-" in front of a negative value; error 11
// for a failure during the conversion.
std::u16string NumberToBaseText(double x, std::int32_t base, std::int32_t decimals, ErrorSink& errors);

}  // namespace tessarondel
