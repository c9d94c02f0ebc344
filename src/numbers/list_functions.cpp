#include <cmath>
#include <string>

#include "numbers/list_arguments.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr double DefaultLogBase = 10;
constexpr double GreatestRoundPlaces = 22;
constexpr double DefaultShortDecimals = 5;
constexpr double GreatestShortDecimals = 20;

// The left part of a text; a negative length is a run-time failure.
std::u16string LeftPart(const std::u16string& text, double length) {
    if (length < 0) throw RunFailure("left part of negative length");
    return text.substr(0, static_cast<std::size_t>(length));
}

}  // namespace

double LogToBase(const CommaTexts& list, ErrorSink& errors) {
    const double x = ElementValue(list, 0);
    const double base = OptionalSecond(list, DefaultLogBase, errors);
    if (x <= 0 || base <= 0 || base == 1) {
        errors.ReportError(InvalidParametersNumber);
        return 0;
    }
    return Divide(NaturalLog(x), NaturalLog(base));
}

// The range test floors the places, the conversion rounds them half to even:
// 22.6 passes the test and becomes 23, which RoundHalfEven rejects.
double RoundList(const CommaTexts& list, ErrorSink& errors) {
    const double v = ElementValue(list, 0);
    const double places = OptionalSecond(list, 0, errors);
    if (Floor(places) > GreatestRoundPlaces || Floor(places) < 0) {
        errors.ReportError(InvalidParametersNumber);
        return 0;
    }
    return RoundHalfEven(v, ToInt32(places));
}

double IifList(const CommaTexts& list, ErrorSink& errors) {
    if (list.UpperBound() != 2) {
        errors.ReportError(InvalidParametersNumber);
        return 0;
    }
    const double condition = LeadingNumber(list[0]);
    return LeadingNumber(condition != 0 ? list[1] : list[2]);
}

// Works on the number's text and cuts: short(2.999,1) is 2.9, and a text in
// exponent form or without a point is read as it stands.
std::optional<double> ShortList(const CommaTexts& list, ErrorSink& errors) {
    std::u16string s(TrimBlanks(list[0]));
    double decimals = DefaultShortDecimals;
    switch (ElementCount(list)) {
        case 1:
            break;
        case 2:
            decimals = std::fmin(Floor(ElementValue(list, 1)), GreatestShortDecimals);
            if (decimals < 0) errors.ReportError(InvalidParametersNumber);
            break;
        default:
            errors.ReportError(InvalidParametersNumber);
            return std::nullopt;
    }
    if (!s.empty() && s[0] == u'.') s = u"0" + s;
    if (s.find(u'E') != std::u16string::npos || s.find(u'.') == std::u16string::npos) return LeadingNumber(s);
    const double point = static_cast<double>(s.find(u'.') + 1);
    const double places = static_cast<double>(s.size()) - point;
    const double keep = places > decimals ? decimals : places;
    return LeadingNumber(LeftPart(s, point + keep));
}

}  // namespace tessarondel
