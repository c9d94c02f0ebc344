#include "numbers/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <system_error>

#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr int SignificantDigits = 15;
constexpr int MaxFixedPlaces = 15;

// x rounded to 15 significant digits from its exact binary value:
// the value is d1.d2d3... * 10^exponent, trailing zeros dropped.
struct RoundedDecimal {
    bool negative = false;
    std::array<char16_t, 24> digits{};
    int count = 0;     // 1 for zero
    int exponent = 0;  // power of ten of the first digit
};

// Digits and exponent of a scientific text "-d.ddde+xx".
RoundedDecimal ReadScientific(const char* first, const char* last) {
    RoundedDecimal result;
    if (*first == '-') {
        result.negative = true;
        ++first;
    }
    for (; *first != 'e'; ++first) {
        if (*first != '.') result.digits[static_cast<std::size_t>(result.count++)] = *first;
    }
    ++first;
    if (*first == '+') ++first;
    std::from_chars(first, last, result.exponent);
    while (result.count > 1 && result.digits[static_cast<std::size_t>(result.count - 1)] == u'0') --result.count;
    return result;
}

__extension__ using Uint128 = unsigned __int128;

constexpr int MaxQuickScale = 27;  // 5^27 < 2^63, and a 53-bit mantissa times it fits in 128 bits

constexpr std::array<std::uint64_t, MaxQuickScale + 1> PowersOfFive = [] {
    std::array<std::uint64_t, MaxQuickScale + 1> powers{};
    powers[0] = 1;
    for (std::size_t k = 1; k < powers.size(); ++k) powers[k] = powers[k - 1] * 5;
    return powers;
}();

constexpr std::uint64_t TenToThe14 = 100000000000000;
constexpr std::uint64_t TenToThe15 = 10 * TenToThe14;

// The exact value of |x| * 10^scale as its integer part and the remainder's
// place against one half: -1 below, 0 a tie, 1 above. |x| = mantissa * 2^binaryExponent.
struct ScaledValue {
    std::uint64_t whole = 0;
    int remainderAgainstHalf = 0;
};

ScaledValue ScaleExactly(std::uint64_t mantissa, int binaryExponent, int scale) {
    // 10^scale = 5^scale * 2^scale: one wide product, then a right shift
    // (between 3 and 69 places for the values that come here).
    const Uint128 product = static_cast<Uint128>(mantissa) * PowersOfFive[static_cast<std::size_t>(scale)];
    const int shift = binaryExponent + scale;
    const Uint128 remainder = product & ((static_cast<Uint128>(1) << -shift) - 1);
    const Uint128 half = static_cast<Uint128>(1) << (-shift - 1);
    return {static_cast<std::uint64_t>(product >> -shift), remainder < half ? -1 : (remainder == half ? 0 : 1)};
}

// Divides the trailing zeros off a 15-digit n, returns the digits left.
int StripTrailingZeros(std::uint64_t& n) {
    struct ZeroRun {
        int length;
        std::uint64_t power;
    };
    int count = SignificantDigits;
    for (const ZeroRun run : {ZeroRun{8, 100000000}, ZeroRun{4, 10000}, ZeroRun{2, 100}, ZeroRun{1, 10}}) {
        if (n % run.power == 0) {
            n /= run.power;
            count -= run.length;
        }
    }
    return count;
}

constexpr std::array<char16_t, 200> DigitPairs = [] {
    std::array<char16_t, 200> pairs{};
    for (std::size_t n = 0; n < 100; ++n) {
        pairs[2 * n] = static_cast<char16_t>(u'0' + n / 10);
        pairs[2 * n + 1] = static_cast<char16_t>(u'0' + n % 10);
    }
    return pairs;
}();

// Digits of n below 10^15.
int DecimalLength(std::uint64_t n) {
    int length = 1;
    for (std::uint64_t power = 10; power <= n; power *= 10) ++length;
    return length;
}

// Writes the count decimal digits of n, two at a time from the last.
void WriteDigits(std::uint64_t n, int count, char16_t* out) {
    for (; count >= 2; count -= 2, n /= 100) {
        out[count - 2] = DigitPairs[2 * (n % 100)];
        out[count - 1] = DigitPairs[2 * (n % 100) + 1];
    }
    if (count == 1) out[0] = static_cast<char16_t>(u'0' + n);
}

constexpr int MaxExactPowerOfTen = 22;  // 10^22 is the largest power of ten that is a double exactly

constexpr std::array<double, MaxExactPowerOfTen + 1> PowersOfTen = [] {
    std::array<double, MaxExactPowerOfTen + 1> powers{};
    powers[0] = 1;
    for (std::size_t k = 1; k < powers.size(); ++k) powers[k] = powers[k - 1] * 10;
    return powers;
}();

// The usual value, a normal x from about 1E-13 up to 1E+15, rounded to 15
// digits in integer arithmetic: the 15 leading digits of |x| are the integer
// part of |x| * 10^scale for the one scale that puts it in [10^14, 10^15),
// rounded half to even on the exact remainder. |x| rounded is then
// digits / 10^scale. False for any other x.
bool RoundToFifteenDigits(double x, std::uint64_t& digits, int& scale) {
    const auto bits = std::bit_cast<std::uint64_t>(x);
    const int biasedExponent = static_cast<int>((bits >> 52) & 0x7FF);
    const int binaryPower = biasedExponent - 1023;  // 2^binaryPower <= |x| < 2^(binaryPower + 1)
    if (biasedExponent == 0 || binaryPower > 49) return false;
    const int lowerPowerOfTen = (binaryPower * 78913) >> 18;  // floor(binaryPower * log10(2)); |x| >= 10^this
    scale = 14 - lowerPowerOfTen;
    if (scale > MaxQuickScale) return false;
    const std::uint64_t mantissa = (bits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
    const int binaryExponent = binaryPower - 52;
    ScaledValue scaled = ScaleExactly(mantissa, binaryExponent, scale);
    if (scaled.whole >= TenToThe15) {  // |x| >= 10^(lowerPowerOfTen + 1)
        if (scale == 0) return false;
        scaled = ScaleExactly(mantissa, binaryExponent, --scale);
    }
    digits = scaled.whole;
    if (scaled.remainderAgainstHalf > 0 || (scaled.remainderAgainstHalf == 0 && (digits & 1) != 0)) ++digits;
    if (digits == TenToThe15) {  // 9.99...95 rounds up to the next power of ten
        digits = TenToThe14;
        --scale;
    }
    return true;
}

bool RoundQuickly(double x, RoundedDecimal& result) {
    std::uint64_t digits = 0;
    int scale = 0;
    if (!RoundToFifteenDigits(x, digits, scale)) return false;
    result.negative = x < 0;
    result.exponent = 14 - scale;
    result.count = StripTrailingZeros(digits);
    WriteDigits(digits, result.count, result.digits.data());
    return true;
}

// The others (from 1E+15 on, below about 1E-13, subnormal) from the library's texts.
RoundedDecimal RoundFromLibraryText(double x) {
    std::array<char, 64> buffer{};
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    // For a normal double the shortest text that reads back to x lies within
    // half a unit of its last bit, far less than half a unit of the 15th
    // digit; with at most 15 digits it is therefore x rounded to 15 digits.
    // Others are rounded from the exact value.
    if (std::isnormal(x)) {
        const RoundedDecimal shortest =
            ReadScientific(first, std::to_chars(first, last, x, std::chars_format::scientific).ptr);
        if (shortest.count <= SignificantDigits) return shortest;
    }
    return ReadScientific(first,
                          std::to_chars(first, last, x, std::chars_format::scientific, SignificantDigits - 1).ptr);
}

// x other than a whole number below 1E+15, rounded to 15 digits.
RoundedDecimal RoundTo15Digits(double x) {
    RoundedDecimal result;
    if (!RoundQuickly(x, result)) result = RoundFromLibraryText(x);
    return result;
}

// Writes into a buffer of at most 40 characters; returns the end.
char16_t* WriteFixed(const RoundedDecimal& d, bool zeroBeforePoint, char16_t* out) {
    const int wholeDigits = d.exponent + 1;  // may be 0 or negative
    for (int i = 0; i < wholeDigits; ++i) *out++ = i < d.count ? d.digits[static_cast<std::size_t>(i)] : u'0';
    if (wholeDigits <= 0 && zeroBeforePoint) *out++ = u'0';
    if (d.count > std::max(wholeDigits, 0)) {
        *out++ = u'.';
        for (int i = wholeDigits; i < 0; ++i) *out++ = u'0';
        for (int i = std::max(wholeDigits, 0); i < d.count; ++i) *out++ = d.digits[static_cast<std::size_t>(i)];
    }
    return out;
}

char16_t* WriteExponentForm(const RoundedDecimal& d, char16_t* out) {
    *out++ = d.digits[0];
    if (d.count > 1) {
        *out++ = u'.';
        for (int i = 1; i < d.count; ++i) *out++ = d.digits[static_cast<std::size_t>(i)];
    }
    *out++ = u'E';
    *out++ = d.exponent < 0 ? u'-' : u'+';
    const int magnitude = d.exponent < 0 ? -d.exponent : d.exponent;
    const int length = magnitude < 100 ? 2 : 3;
    WriteDigits(static_cast<std::uint64_t>(magnitude), length, out);
    return out + length;
}

// The text of x; `lead` is the blank that NumberText puts before a non-negative number.
std::u16string FormatRounded(double x, bool zeroBeforePoint, bool lead) {
    std::array<char16_t, 48> buffer;
    char16_t* out = buffer.data();
    // Whole numbers below 1E+15 have at most 15 digits: their text is the integer.
    if (x == std::trunc(x) && std::fabs(x) < 1e15) {
        if (x < 0) {
            *out++ = u'-';
        } else if (lead) {
            *out++ = u' ';
        }
        const auto magnitude = static_cast<std::uint64_t>(std::fabs(x));
        const int length = DecimalLength(magnitude);
        WriteDigits(magnitude, length, out);
        return std::u16string(buffer.data(), out + length);
    }
    const RoundedDecimal d = RoundTo15Digits(x);
    const int placesAfterPoint = d.count - 1 - d.exponent;
    const bool fixed = d.exponent < SignificantDigits && placesAfterPoint <= MaxFixedPlaces;
    if (d.negative) {
        *out++ = u'-';
    } else if (lead) {
        *out++ = u' ';
    }
    out = fixed ? WriteFixed(d, zeroBeforePoint, out) : WriteExponentForm(d, out);
    return std::u16string(buffer.data(), out);
}

bool IsExponentMark(char16_t c) { return c == u'e' || c == u'E' || c == u'd' || c == u'D'; }

// Length of the digit run starting at i.
std::size_t DigitRun(std::u16string_view t, std::size_t i) {
    std::size_t n = 0;
    while (i + n < t.size() && IsAsciiDigit(t[i + n])) ++n;
    return n;
}

// A number in plain ASCII: optional "-", digits with an optional point, and
// an optional "e" exponent. Too large is the overflow failure; too small is 0.
double ParseDecimal(std::string_view text) {
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec == std::errc()) return value;
    if (parsed.ec != std::errc::result_out_of_range) throw RunFailure("no number");
    // Out of range: decide whether the magnitude is beyond the top or the bottom.
    const std::size_t e = text.find('e');
    const std::string_view mantissa = text.substr(0, e);
    long long exponent = 0;
    if (e != std::string_view::npos) {
        const char* first = text.data() + e + 1 + (text[e + 1] == '+' ? 1 : 0);
        std::from_chars(first, text.data() + text.size(), exponent);
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t lead = mantissa.find_first_of("123456789");
    const long long leadPower =
        lead < point ? static_cast<long long>(point - lead) - 1 : -static_cast<long long>(lead - point);
    if (leadPower + exponent >= 0) throw OverflowFailure();
    return text[0] == '-' ? -0.0 : 0.0;
}

// Plain ASCII form of a numeric text: "d" read as "e", no "+" in front.
std::string ToPlainAscii(std::u16string_view t) {
    std::string out;
    out.reserve(t.size() + 1);
    for (const char16_t c : t) out += IsExponentMark(c) ? 'e' : static_cast<char>(c);
    return out;
}

// The same for short texts, without a heap allocation.
double ParseNumericText(std::u16string_view t, bool negative) {
    std::array<char, 64> buffer{};
    if (t.size() + 1 > buffer.size()) return ParseDecimal((negative ? "-" : "") + ToPlainAscii(t));
    std::size_t n = 0;
    if (negative) buffer[n++] = '-';
    for (const char16_t c : t) buffer[n++] = IsExponentMark(c) ? 'e' : static_cast<char>(c);
    return ParseDecimal(std::string_view(buffer.data(), n));
}

// Appends the digit run at i to digits; returns its length.
std::size_t AppendDigits(std::u16string_view t, std::size_t& i, std::uint64_t& digits) {
    const std::size_t start = i;
    for (; i < t.size() && IsAsciiDigit(t[i]); ++i) digits = digits * 10 + (t[i] - u'0');
    return i - start;
}

std::size_t SkipZeros(std::u16string_view t, std::size_t i) {
    while (i < t.size() && t[i] == u'0') ++i;
    return i;
}

// Digits and point of a token as an integer and a power of ten, leading
// zeros skipped. False without digits or with more than 19 significant ones
// (which might not fit in 64 bits).
bool ReadQuickMantissa(std::u16string_view t, std::size_t& i, std::uint64_t& digits, int& powerOfTen) {
    i = SkipZeros(t, 0);
    bool anyDigit = i > 0;
    std::size_t significant = AppendDigits(t, i, digits);
    anyDigit = anyDigit || significant > 0;
    if (i < t.size() && t[i] == u'.') {
        const std::size_t fractionStart = ++i;
        if (digits == 0) i = SkipZeros(t, i);
        significant += AppendDigits(t, i, digits);
        powerOfTen = -static_cast<int>(i - fractionStart);
        anyDigit = anyDigit || i > fractionStart;
    }
    return anyDigit && significant <= 19;
}

// An exponent of at most four digits that ends the token, added to powerOfTen.
bool ReadQuickExponent(std::u16string_view t, std::size_t i, int& powerOfTen) {
    if (i == t.size()) return true;
    if (!IsExponentMark(t[i]) || ++i == t.size()) return false;
    const bool negative = t[i] == u'-';
    if (t[i] == u'-' || t[i] == u'+') ++i;
    std::uint64_t exponent = 0;
    const std::size_t length = AppendDigits(t, i, exponent);
    if (length == 0 || length > 4 || i != t.size()) return false;
    powerOfTen += negative ? -static_cast<int>(exponent) : static_cast<int>(exponent);
    return true;
}

// The usual token quickly: when its digits make an integer of at most 2^53
// and the power of ten is within 22 places, both are doubles exactly and one
// multiplication or division gives the correctly rounded value. False for any
// other text, numeric or not, which takes the full route.
bool ReadQuickly(std::u16string_view t, bool negative, double& value) {
    std::size_t i = 0;
    std::uint64_t digits = 0;
    int powerOfTen = 0;
    if (!ReadQuickMantissa(t, i, digits, powerOfTen) || !ReadQuickExponent(t, i, powerOfTen)) return false;
    if (digits > (std::uint64_t{1} << 53) || powerOfTen < -MaxExactPowerOfTen || powerOfTen > MaxExactPowerOfTen) {
        if (digits != 0) return false;
        powerOfTen = 0;  // zero whatever the exponent
    }
    const double whole = static_cast<double>(digits);
    value = powerOfTen < 0 ? whole / PowersOfTen[static_cast<std::size_t>(-powerOfTen)]
                           : whole * PowersOfTen[static_cast<std::size_t>(powerOfTen)];
    if (negative) value = -value;
    return true;
}

}  // namespace

std::u16string NumberText(double x) { return FormatRounded(x, false, true); }

std::u16string DisplayNumberText(double x) { return FormatRounded(x, true, false); }

double FifteenDigitCopy(double x) {
    if (x == 0) return 0.0;  // the text of -0 is "0"
    std::uint64_t digits = 0;
    int scale = 0;
    // Both operands exact, so the quotient is the correctly rounded value of
    // the decimal, which is what reading the text gives.
    // Just under 1E+15 the rounding carries into a negative scale; those take the long way.
    if (RoundToFifteenDigits(x, digits, scale) && scale >= 0 && scale <= MaxExactPowerOfTen) {
        const double magnitude = static_cast<double>(digits) / PowersOfTen[static_cast<std::size_t>(scale)];
        return x < 0 ? -magnitude : magnitude;
    }
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::scientific, 14);
    double copy = 0;
    const auto parsed = std::from_chars(buffer.data(), written.ptr, copy);
    if (parsed.ec == std::errc()) return copy;
    if (std::abs(x) > 1) throw OverflowFailure();  // 1.79769313486232E+308 lies beyond the range
    return x < 0 ? -0.0 : 0.0;                     // too small for a double: zero, as the reading gives
}

bool IsNumericText(std::u16string_view t) {
    std::size_t i = DigitRun(t, 0);
    std::size_t digits = i;
    if (i < t.size() && t[i] == u'.') {
        const std::size_t fraction = DigitRun(t, i + 1);
        digits += fraction;
        i += 1 + fraction;
    }
    if (digits == 0) return false;
    if (i == t.size()) return true;
    if (!IsExponentMark(t[i])) return false;
    ++i;
    if (i < t.size() && (t[i] == u'+' || t[i] == u'-')) ++i;
    const std::size_t exponentDigits = DigitRun(t, i);
    return exponentDigits > 0 && i + exponentDigits == t.size();
}

double TextToNumber(std::u16string_view t) {
    t = TrimBlanks(t);
    bool negative = false;
    if (!t.empty() && (t[0] == u'-' || t[0] == u'+')) {
        negative = t[0] == u'-';
        t.remove_prefix(1);
    }
    double value = 0;
    if (ReadQuickly(t, negative, value)) return value;
    if (!IsNumericText(t)) throw RunFailure("text is no number");
    return ParseNumericText(t, negative);
}

double LeadingNumber(std::u16string_view t) {
    std::u16string compact;
    compact.reserve(t.size());
    for (const char16_t c : t) {
        if (c != u' ') compact += c;
    }
    std::u16string_view rest(compact);
    std::string number;
    if (!rest.empty() && (rest[0] == u'-' || rest[0] == u'+')) {
        if (rest[0] == u'-') number += '-';
        rest.remove_prefix(1);
    }
    std::size_t i = DigitRun(rest, 0);
    std::size_t digits = i;
    if (i < rest.size() && rest[i] == u'.') {
        const std::size_t fraction = DigitRun(rest, i + 1);
        digits += fraction;
        i += 1 + fraction;
    }
    if (digits == 0) return 0;
    std::size_t end = i;
    if (i < rest.size() && IsExponentMark(rest[i])) {
        std::size_t j = i + 1;
        if (j < rest.size() && (rest[j] == u'+' || rest[j] == u'-')) ++j;
        const std::size_t exponentDigits = DigitRun(rest, j);
        if (exponentDigits > 0) end = j + exponentDigits;  // only a complete exponent counts
    }
    number += ToPlainAscii(rest.substr(0, end));
    return ParseDecimal(number);
}

}  // namespace tessarondel
