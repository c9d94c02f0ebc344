#pragma once

#include <cstdint>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// The name lists and character tests that the token stream and the custom
// function table share.

inline constexpr std::u16string_view BuiltinFunctionList =
    u"{round},{iif},{perm},{comb},{fac},{short},{mean},{cov},{std},{prod},{max},{min},{sum},{not},{log},{angtorad},"
    u"{sqrt},{radtoang},{sh},{ch},{th},{arsh},{arch},{arth},{arcsin},{arccos},{arctan},{arccot},{sin},{cos},{tan},"
    u"{cot},{abs},{exp},{sgn},{sqr},{int},{fix},{ln},{arcsec},{arccsc},{sec},{csc},{rnd}";
inline constexpr std::u16string_view AliasList =
    u"{permutation},{combination},{hsin},{hcos},{htan},{harcsin},{harccos},{harctan},{tg},{average},{product},"
    u"{factorial},{ator},{rtoa}";
inline constexpr std::u16string_view WordOperatorList = u"{and},{xor},{eqv},{mod},{div},{or},{imp}";
inline constexpr std::u16string_view ConstantList = u"{true},{false},{e},{pi},{inf},{eps}";

// One of = , + - * / \ % ^ > < ( ) & | ! ~, the empty text, or the codes 0, 9, 10, 13. Not the blank.
bool IsDelimiterChar(std::u16string_view c);

bool ContainsText(std::u16string_view needle, std::u16string_view haystack);

// Occurrences of `c`, counted in 16 bits: a text over 32,767 characters reports
// error 6 and gives 0.
std::int16_t CountChar(EngineState& state, std::u16string_view text, char16_t c);

}  // namespace tessarondel
