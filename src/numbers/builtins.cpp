#include "numbers/builtins.h"

#include <array>
#include <cmath>
#include <exception>
#include <optional>

#include "numbers/error_numbers.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

using OneArgumentFunction = double (*)(double x, ErrorSink& errors);
using ListFunction = std::optional<double> (*)(const CommaTexts& list, ErrorSink& errors);

struct OneArgumentRow {
    std::u16string_view name;
    OneArgumentFunction compute;
};

struct ListRow {
    std::u16string_view name;
    ListFunction compute;
};

// Adapters that give every row of a table the same signature.
template <double (*Function)(double)>
double IgnoringErrors(double x, ErrorSink&) {
    return Function(x);
}

template <double (*Function)(const CommaTexts&)>
std::optional<double> ListIgnoringErrors(const CommaTexts& list, ErrorSink&) {
    return Function(list);
}

template <double (*Function)(const CommaTexts&, ErrorSink&)>
std::optional<double> ListAlwaysStoring(const CommaTexts& list, ErrorSink& errors) {
    return Function(list, errors);
}

double Complement(double x) { return static_cast<double>(~ToInt32(x)); }
double Square(double x) { return Checked(x * x); }
double Absolute(double x) { return std::abs(x); }
double ArcTangent(double x) { return std::atan(x); }
// Multiplied first, then divided.
double AngleToRadians(double x) { return Checked(x * PiValue) / 180; }
double RadiansToAngle(double x) { return Checked(x * 180) / PiValue; }

// Searched in this order; a row's domain errors are reported inside it.
constexpr std::array OneArgumentTable{
    OneArgumentRow{u"fac", Factorial},
    OneArgumentRow{u"sin", IgnoringErrors<Sine>},
    OneArgumentRow{u"cos", IgnoringErrors<Cosine>},
    OneArgumentRow{u"tan", IgnoringErrors<Tangent>},
    OneArgumentRow{u"cot", IgnoringErrors<Cotangent>},
    OneArgumentRow{u"int", IgnoringErrors<Floor>},
    OneArgumentRow{u"fix", IgnoringErrors<Truncate>},
    OneArgumentRow{u"not", IgnoringErrors<Complement>},
    OneArgumentRow{u"ln", NaturalLogOfPositive},
    OneArgumentRow{u"exp", IgnoringErrors<Exponential>},
    OneArgumentRow{u"sqr", IgnoringErrors<Square>},
    OneArgumentRow{u"sqrt", SquareRootOfNonNegative},
    OneArgumentRow{u"sec", IgnoringErrors<Secant>},
    OneArgumentRow{u"csc", IgnoringErrors<Cosecant>},
    OneArgumentRow{u"rnd", IgnoringErrors<RandomTimes>},
    OneArgumentRow{u"sgn", IgnoringErrors<Sign>},
    OneArgumentRow{u"abs", IgnoringErrors<Absolute>},
    OneArgumentRow{u"sh", IgnoringErrors<HyperbolicSine>},
    OneArgumentRow{u"ch", IgnoringErrors<HyperbolicCosine>},
    OneArgumentRow{u"th", IgnoringErrors<HyperbolicTangent>},
    OneArgumentRow{u"arsh", IgnoringErrors<InverseHyperbolicSine>},
    OneArgumentRow{u"arch", InverseHyperbolicCosine},
    OneArgumentRow{u"arth", InverseHyperbolicTangent},
    OneArgumentRow{u"arcsin", ArcSine},
    OneArgumentRow{u"arccos", ArcCosine},
    OneArgumentRow{u"arctan", IgnoringErrors<ArcTangent>},
    OneArgumentRow{u"arccot", IgnoringErrors<ArcCotangent>},
    OneArgumentRow{u"arcsec", ArcSecant},
    OneArgumentRow{u"arccsc", ArcCosecant},
    OneArgumentRow{u"angtorad", IgnoringErrors<AngleToRadians>},
    OneArgumentRow{u"radtoang", IgnoringErrors<RadiansToAngle>},
};

// Searched in this order; only short can leave without a result.
constexpr std::array ListTable{
    ListRow{u"round", ListAlwaysStoring<RoundList>},
    ListRow{u"iif", ListAlwaysStoring<IifList>},
    ListRow{u"perm", ListAlwaysStoring<Permutations>},
    ListRow{u"comb", ListAlwaysStoring<Combinations>},
    ListRow{u"short", ShortList},
    ListRow{u"mean", ListIgnoringErrors<ListMean>},
    ListRow{u"log", ListAlwaysStoring<LogToBase>},
    ListRow{u"cov", ListIgnoringErrors<ListVariance>},
    ListRow{u"std", ListIgnoringErrors<ListStdDev>},
    ListRow{u"prod", ListIgnoringErrors<ListProduct>},
    ListRow{u"sum", ListIgnoringErrors<ListSum>},
    ListRow{u"max", ListIgnoringErrors<ListMax>},
    ListRow{u"min", ListIgnoringErrors<ListMin>},
};

// Exact comparison of the lower-cased name, without building the lower-cased text.
bool NameMatches(std::u16string_view name, std::u16string_view rowName) {
    if (name.size() != rowName.size()) return false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (AsciiLowerChar(name[i]) != rowName[i]) return false;
    }
    return true;
}

template <typename Table>
const typename Table::value_type* FindRow(const Table& table, std::u16string_view name) {
    for (const auto& row : table) {
        if (NameMatches(name, row.name)) return &row;
    }
    return nullptr;
}

bool RoundsResults(int approximateBits) { return approximateBits >= 0 && approximateBits <= 22; }

}  // namespace

void CallBuiltin(std::u16string_view name, double& value, const CommaTexts& commaList, int approximateBits,
                 ErrorSink& errors) {
    try {
        const bool single = commaList.UpperBound() == 0;
        double v = value;
        if (single) {
            if (const auto* row = FindRow(OneArgumentTable, name)) v = row->compute(v, errors);
        }
        if (const auto* row = FindRow(ListTable, name)) {
            const std::optional<double> result = row->compute(commaList, errors);
            if (!result) return;
            v = *result;
        } else if (!single) {
            errors.ReportError(InvalidParametersNumber);  // sin(1,2)
            return;
        }
        value = v;
        if (RoundsResults(approximateBits)) value = RoundHalfEven(value, approximateBits);
    } catch (const OverflowFailure&) {
        errors.ReportError(OverflowErrorNumber);
    } catch (const std::exception&) {
        errors.ReportError(UnknownErrorNumber);
    }
}

}  // namespace tessarondel
