#pragma once

namespace tessarondel {

// The error numbers that the number routines report.
enum NumberErrors : int {
    SyntaxErrorNumber = 0,           // $b2: a digit outside the base
    InvalidParametersNumber = 5,     // ln(0), sin(1,2), fac(2.5)
    OverflowErrorNumber = 6,         // exp(1000), fac(171)
    BaseConvertingErrorNumber = 11,  // a failure while writing a number in a base
    UnknownErrorNumber = 99,         // arth(1): any failure but overflow
};

}  // namespace tessarondel
