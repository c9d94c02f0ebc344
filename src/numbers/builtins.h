#pragma once

#include <string>
#include <string_view>

#include "numbers/error_sink.h"
#include "numbers/comma_texts.h"

namespace tessarondel {

// The system's pi (not the nearest double to pi) and the stand-in for infinity.
inline constexpr double PiValue = 3.14159265358979;
inline constexpr double BigValue = 1.79769313486231E308;

// Applies the built-in function `name` to the group that has just closed:
// `value` holds its last element in full precision, `commaList` all elements as
// 15-digit texts. Reports domain errors to `errors`; a run-time failure is
// handled here (6 for overflow, 99 otherwise) and leaves `value` as it came.
// Rounds the result to `approximateBits` places when that is 0..22.
void CallBuiltin(std::u16string_view name, double& value, const CommaTexts& commaList,
                 int approximateBits, ErrorSink& errors);

}  // namespace tessarondel
