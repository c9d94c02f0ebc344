#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace tessarondel::bench {

// A sum of exactly `length` characters with numbers, pi and e constants, mod
// words, percent signs, exponents and brackets: the texts whose rewrites
// restart their scans. With `fitting`, constants are sparse enough that the
// rewritten text stays within the 32,767 characters the bracket count accepts,
// and the ladder runs to the end; otherwise the rewrite outgrows that and the
// evaluation stops after the passes with error 6.
inline std::string LongExpression(std::size_t length, bool fitting) {
    static const char* const dense[] = {"pi", "e", "7 mod 3", "50%", "2e3", "(1+2)", "x", "3.5", "pi*e", "9 mod 4"};
    static const char* const sparse[] = {"7 mod 3", "12", "(1+2)", "x", "3.5", "9 mod 4", "2.5", "11", "4*5", "8/2"};
    std::mt19937 random(42);
    std::uniform_int_distribution<int> pick(0, 9);
    std::string text = "x=1,1";
    for (int term = 0;; ++term) {
        const char* body = (fitting ? sparse : dense)[pick(random)];
        if (fitting && term % 50 == 0) body = term % 100 == 0 ? "pi" : "e%";
        const std::string next = std::string("+") + body;
        if (text.size() + next.size() > length) break;
        text += next;
    }
    while (text.size() + 2 <= length) text += "+1";
    text.resize(length, ' ');
    return text;
}

}  // namespace tessarondel::bench
