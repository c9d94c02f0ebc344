#pragma once

#include "numbers/error_numbers.h"
#include "numbers/number_text.h"
#include "numbers/numeric_helpers.h"

namespace tessarondel {

inline long ElementCount(const CommaTexts& list) { return list.UpperBound() + 1; }

inline double ElementValue(const CommaTexts& list, long index) { return list.Value(index); }

// The optional second argument of a one-or-two argument function: `fallback`
// for one element; for more than two, error 5 and the function goes on with 0.
inline double OptionalSecond(const CommaTexts& list, double fallback, ErrorSink& errors) {
    switch (ElementCount(list)) {
        case 1:
            return fallback;
        case 2:
            return ElementValue(list, 1);
        default:
            errors.ReportError(InvalidParametersNumber);
            return 0;
    }
}

}  // namespace tessarondel
