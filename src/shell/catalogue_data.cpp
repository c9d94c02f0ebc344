// The vocabulary of the menus: built-in functions by group and constants by
// group, in menu order. Data only.
#include <array>

#include "shell/catalogue.h"

namespace tessarondel {
namespace {

constexpr FunctionCatalogueEntry kSeparator{u"-", u"", u""};

constexpr std::array<FunctionCatalogueEntry, 20> kTrigonometric{{
    {u"sin", u"sin(N)", u"Returns the sine of the given angle."},
    {u"cos", u"cos(N)", u"Returns the cosine of the given angle."},
    {u"tan", u"tan(N)", u"Returns the tangent of the given angle."},
    {u"cot", u"cot(N)", u"Returns the cotangent of the given angle."},
    {u"arcsin", u"arcsin(N)", u"Returns the arcsine of a number."},
    {u"arccos", u"arccos(N)", u"Returns the arccosine of a number."},
    {u"arctan", u"arctan(N)", u"Returns the arctangent of a number."},
    {u"arccot", u"arccot(N)", u"Returns the arccotangent of a number."},
    kSeparator,
    {u"sh", u"sh(N)", u"Returns the hyperbolic sine of a number."},
    {u"ch", u"ch(N)", u"Returns the hyperbolic cosine of a number."},
    {u"th", u"th(N)", u"Returns the hyperbolic tangent of a number"},
    {u"arsh", u"arsh(N)", u"Returns the inverse hyperbolic sine of a number."},
    {u"arch", u"arch(N)", u"Returns the inverse hyperbolic cosine of a number."},
    {u"arth", u"arth(N)", u"Returns the inverse hyperbolic tangent of a number."},
    kSeparator,
    {u"sec", u"sec(N)", u"Returns the secant of the given angle."},
    {u"csc", u"csc(N)", u"Returns the cosecant of the given angle."},
    {u"arcsec", u"arcsec(N)", u"Returns the arcsecant of a number."},
    {u"arccsc", u"arccsc(N)", u"Returns the arc cosecant of a number."},
}};

constexpr std::array<FunctionCatalogueEntry, 15> kMathematical{{
    {u"abs", u"abs(N)", u"Returns the absolute value of the number."},
    {u"sgn", u"sgn(N)", u"Determines the sign of a number."},
    {u"int", u"int(N)", u"Rounds a number down to the next lowest integer."},
    {u"fix", u"fix(N)", u"Returns the integer part of the number."},
    {u"sqr", u"sqr(N)", u"Returns the square of a number."},
    {u"sqrt", u"sqrt(N)", u"Returns the positive square root of a number."},
    {u"exp", u"exp(N)", u"Returns e raised to the power of number."},
    {u"ln", u"ln(N)", u"Returns the natural logarithm of a number."},
    {u"log", u"log(N,[m=10])", u"Returns the logarithm of a number."},
    {u"rnd", u"rnd(N)", u"Returns a random number between in the range [0, abs(N))."},
    kSeparator,
    {u"fac", u"fac(N)", u"Returns the factorial of a number."},
    {u"max", u"max(N1[,N2[,N3.....]])", u"Returns the maximum of the arguments."},
    {u"min", u"min(N1[,N2[,N3.....]])", u"Returns the minimum of the arguments."},
    {u"round", u"round(N1[,N2])", u"make Round Operation for N1 according to the appointed bits N2."},
}};

constexpr std::array<FunctionCatalogueEntry, 7> kStatistical{{
    {u"perm", u"perm(N1[,N2])",
     u"Returns the number of permutations for a given number of objects that can be selected from number objects."},
    {u"comb", u"comb(N1[,N2])", u"Returns the number of combinations for a given number of items."},
    {u"mean", u"mean(N1[,N2[,N3.....]])", u"Returns the average (arithmetic mean) of the arguments."},
    {u"cov", u"cov(N1[,N2[,N3.....]])", u"Returns the covariance of the numbers."},
    {u"std", u"std(N1[,N2[,N3.....]])", u"Estimates standard deviation based on a sample."},
    {u"prod", u"prod(N1[,N2[,N3.....]])", u"Returns the product of the arguments."},
    {u"sum", u"sum(N1[,N2[,N3.....]])", u"Returns the sum of the arguments."},
}};

constexpr std::array<FunctionCatalogueEntry, 6> kOther{{
    {u"angtorad", u"angtorad(N)", u"Converts angles into radians."},
    {u"radtoang", u"radtoang(N)", u"Converts radians into angles."},
    kSeparator,
    {u"not", u"not(N)",
     u"1. This operator performs logical NOT on its argument.2. performs a bitwise logical NOT for its argument, "
     u"taking each corresponding bit."},
    {u"short", u"short(N1[,N2])", u"Returns the short format of the number."},
    {u"iif", u"iif(exp,N1,N2)", u"If exp=True then returns N1,else returns N2."},
}};

constexpr std::array<FunctionGroup, 4> kFunctionGroups{{
    {u"Trigonometric", kTrigonometric},
    {u"Mathematical", kMathematical},
    {u"Statistical", kStatistical},
    {u"Other", kOther},
}};

constexpr ConstantCatalogueEntry kConstantSeparator{u"-", u"-"};

constexpr std::array<ConstantCatalogueEntry, 6> kAngles{{
    {u"radians / degree", u"0.017453292519943296"},
    {u"radians / grad", u"0.015707963267948966"},
    {u"degrees / radian", u"57.295779513082320900"},
    {u"degrees / grad", u"0.900000000000000000"},
    {u"grads / degree", u"1.111111111111111110"},
    {u"grads / radian", u"63.661977236758134300"},
}};

constexpr std::array<ConstantCatalogueEntry, 6> kMathematicalConstants{{
    {u"Pi", u"Pi"},
    {u"E", u"E"},
    {u"Gamma(Euler's Constant)", u"0.577215664901532861"},
    kConstantSeparator,
    {u"True", u"True"},
    {u"False", u"False"},
}};

constexpr std::array<ConstantCatalogueEntry, 13> kPhysical{{
    {u"Gravity Acceleration (m/s/s)", u"9.806650000000000000"},
    {u"Speed of Light (m/s)", u"2.99792458000000000E+8"},
    kConstantSeparator,
    {u"Avogadro's Constant (1/mol)", u"6.02214199000000000E+23"},
    {u"Elementary Charge (cols)", u"1.60217646200000000E-19"},
    {u"Faraday's Constant (col/mol)", u"9.64853415000000000E+4"},
    {u"Gravitational Constant (m^3/kg/s/s)", u"6.67300000000000000E-11"},
    {u"Planck's Constant (j s)", u"6.62606876000000000E-34"},
    kConstantSeparator,
    {u"Proton Mass Unit (kg)", u"1.67262158000000000E-27"},
    {u"Electron Mass Unit (kg)", u"9.10938188000000000E-31"},
    {u"Neutron Mass Unit (kg)", u"1.67492716000000000E-27"},
    {u"Atomic Mass Unit (kg)", u"1.66053873000000000E-27"},
}};

constexpr std::array<ConstantCatalogueEntry, 2> kSystem{{{u"Inf", u"Inf"}, {u"Eps", u"Eps"}}};

// Nothing adds custom constants; "Configure..." is a placeholder.
constexpr std::array<ConstantCatalogueEntry, 2> kCustom{{{u"Configure...", u""}, kConstantSeparator}};

constexpr std::array<ConstantGroup, 6> kConstantGroups{{
    {u"Angles", u"Angles Constant:", kAngles},
    {u"Mathematical", u"Mathematical Constant:", kMathematicalConstants},
    {u"Physical", u"Physical Constant:", kPhysical},
    {u"System", u"System Constant:", kSystem},
    {u"-", u"", {}},
    {u"Custom", u"Custom Constant:", kCustom},
}};

}  // namespace

std::span<const FunctionGroup> BuiltInFunctionCatalogue() { return kFunctionGroups; }
std::span<const ConstantGroup> ConstantCatalogue() { return kConstantGroups; }

}  // namespace tessarondel
