#pragma once

#include <optional>
#include <string>

#include "numbers/comma_texts.h"
#include "numbers/error_sink.h"
#include "numbers/number_text.h"

namespace tessarondel {

// The routines behind the built-in functions. None has a failure handler: an
// OverflowFailure or RunFailure goes up to CallBuiltin's. Domain errors are
// reported to `errors` and the routine returns as its row says.

// Snapping tests, judged on the 15-digit copy of x so that a value like
// 3*pi/2 lands on the grid of quarter turns.
bool IsPiMultiple(double x);
bool IsOddHalfPi(double x);
// Which infinity tan and cot give at a pole: true for the positive one.
bool IsTanPolePositive(double x);
bool IsCotPolePositive(double x);

// x! in doubles; error 5 and 0 for a negative or fractional x; overflow from 171 on.
double Factorial(double x, ErrorSink& errors);

// The list functions on the 15-digit element texts.
double Permutations(const CommaTexts& list, ErrorSink& errors);
double Combinations(const CommaTexts& list, ErrorSink& errors);
double LogToBase(const CommaTexts& list, ErrorSink& errors);
double RoundList(const CommaTexts& list, ErrorSink& errors);
double IifList(const CommaTexts& list, ErrorSink& errors);
double ListSum(const CommaTexts& list);
double ListProduct(const CommaTexts& list);
double ListMean(const CommaTexts& list);
double ListVariance(const CommaTexts& list);
double ListStdDev(const CommaTexts& list);
double ListMax(const CommaTexts& list);
double ListMin(const CommaTexts& list);
// The number cut (not rounded) to some decimals on its text; none when there
// are more than two arguments, which leaves CallBuiltin without a result.
std::optional<double> ShortList(const CommaTexts& list, ErrorSink& errors);

// abs(x) times a single-precision draw in [0, 1), reseeded from the time of day.
double RandomTimes(double x);

// Hyperbolic functions from exp, in the order exp(-x), exp(x); no saturation.
double HyperbolicSine(double x);
double HyperbolicCosine(double x);
double HyperbolicTangent(double x);
// Their inverses through ln; x comes back unchanged after an error 5.
double InverseHyperbolicSine(double x);
double InverseHyperbolicCosine(double x, ErrorSink& errors);
double InverseHyperbolicTangent(double x, ErrorSink& errors);

// Inverse circular functions by the system's own formulas from atan; x comes
// back unchanged after an error 5.
double ArcSine(double x, ErrorSink& errors);
double ArcCosine(double x, ErrorSink& errors);
double ArcCotangent(double x);
double ArcSecant(double x, ErrorSink& errors);
double ArcCosecant(double x, ErrorSink& errors);

// Circular functions with the snapping tests: exact zeros on the grid of
// quarter turns, BigValue or -BigValue at the poles of tan and cot. sec and
// csc have no snapping: csc(PiValue) is about 3.1E+14.
double Sine(double x);
double Cosine(double x);
double Tangent(double x);
double Cotangent(double x);
double Secant(double x);
double Cosecant(double x);

// Guarded arithmetic: a zero divisor is RunFailure; exp beyond the double
// range is OverflowFailure; the logarithm and root of a value outside their
// domain are RunFailure.
double Divide(double dividend, double divisor);
double Exponential(double x);
double NaturalLog(double x);
double SquareRoot(double x);

// ln and sqrt as the user calls them: outside the domain error 5, x unchanged.
double NaturalLogOfPositive(double x, ErrorSink& errors);
double SquareRootOfNonNegative(double x, ErrorSink& errors);

}  // namespace tessarondel
