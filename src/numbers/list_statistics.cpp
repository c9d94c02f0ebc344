#include <cmath>

#include "numbers/list_arguments.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"

namespace tessarondel {

double ListSum(const CommaTexts& list) {
    double sum = 0;
    for (long i = 0; i < ElementCount(list); ++i) sum = Checked(sum + ElementValue(list, i));
    return sum;
}

double ListProduct(const CommaTexts& list) {
    double product = 1;
    for (long i = 0; i < ElementCount(list); ++i) product = Checked(product * ElementValue(list, i));
    return product;
}

double ListMean(const CommaTexts& list) { return Divide(ListSum(list), static_cast<double>(ElementCount(list))); }

// The sample variance: the user's word for it is cov.
double ListVariance(const CommaTexts& list) {
    const double mean = ListMean(list);
    if (list.UpperBound() == 0) return 0;
    double squares = 0;
    for (long i = 0; i < ElementCount(list); ++i) {
        squares = Checked(squares + Power(Checked(ElementValue(list, i) - mean), 2));
    }
    return Divide(squares, static_cast<double>(ElementCount(list) - 1));
}

double ListStdDev(const CommaTexts& list) { return SquareRoot(ListVariance(list)); }

double ListMax(const CommaTexts& list) {
    double greatest = ElementValue(list, 0);
    for (long i = 1; i < ElementCount(list); ++i) {
        const double element = ElementValue(list, i);
        if (element > greatest) greatest = element;
    }
    return greatest;
}

double ListMin(const CommaTexts& list) {
    double least = ElementValue(list, 0);
    for (long i = 1; i < ElementCount(list); ++i) {
        const double element = ElementValue(list, i);
        if (element < least) least = element;
    }
    return least;
}

}  // namespace tessarondel
