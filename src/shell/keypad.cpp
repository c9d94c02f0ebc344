#include "shell/keypad.h"

#include <array>

namespace tessarondel {
namespace {

constexpr std::array<const char16_t*, 12> kNumbers{u"0", u"1", u"2", u"3", u"4", u"5",
                                                   u"6", u"7", u"8", u"9", u".", u"e"};
constexpr std::array<const char16_t*, 2> kBrackets{u"(", u")"};
constexpr std::array<const char16_t*, 22> kOperators{u",",   u"+",  u"-",   u"*",   u"/",  u"^",  u"%",   u"=",
                                                     u"==",  u">",  u">=",  u"<",   u"<=", u"<>", u"div", u"mod",
                                                     u"and", u"or", u"xor", u"imp", u"'",  u"eqv"};
constexpr std::array<const char16_t*, 4> kConstants{u"Pi", u"E", u"Inf", u"Eps"};
constexpr std::array<const char16_t*, 22> kFunctions{
    u"sin", u"cos", u"tan", u"cot",  u"sec", u"csc", u"ln",  u"log", u"rnd",  u"ator",  u"rtoa",
    u"abs", u"exp", u"sgn", u"sqrt", u"int", u"not", u"iif", u"sqr", u"mean", u"short", u"sum"};

// The word operators stand at 14 to 19 and 21; the note mark at 20 is none.
bool IsWordOperator(int index) { return (index >= 14 && index <= 19) || index == 21; }

std::u16string Padded(const char16_t* caption) { return u" " + std::u16string(caption) + u" "; }

}  // namespace

std::span<const char16_t* const> KeypadCaptions(KeypadGroup group) {
    switch (group) {
        case KeypadGroup::Number:
            return kNumbers;
        case KeypadGroup::Bracket:
            return kBrackets;
        case KeypadGroup::Operator:
            return kOperators;
        case KeypadGroup::Constant:
            return kConstants;
        case KeypadGroup::Function:
            return kFunctions;
    }
    return {};
}

int KeypadCaptionColour(KeypadGroup group) {
    switch (group) {
        case KeypadGroup::Number:
            return 4;
        case KeypadGroup::Operator:
            return 1;
        case KeypadGroup::Bracket:
            return 5;
        default:
            return -1;
    }
}

std::u16string KeypadInsertText(KeypadGroup group, int index) {
    const char16_t* caption = KeypadCaptions(group)[static_cast<std::size_t>(index)];
    switch (group) {
        case KeypadGroup::Operator:
            return IsWordOperator(index) ? Padded(caption) : std::u16string(caption);
        case KeypadGroup::Constant:
            return Padded(caption);
        case KeypadGroup::Function:
            return std::u16string(caption) + u"()";
        default:
            return caption;
    }
}

}  // namespace tessarondel
