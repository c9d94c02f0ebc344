#pragma once

#include <span>
#include <string>

namespace tessarondel {

// The five button groups of the input panel. A caption is the text that goes
// into the input, so the captions are data.
enum class KeypadGroup { Number, Bracket, Operator, Constant, Function };

inline constexpr const char16_t* kConstantsFrameCaption = u" Consts ";

std::span<const char16_t* const> KeypadCaptions(KeypadGroup group);

// Caption colour as an index of the classic 16-colour palette (4 red, 1 blue,
// 5 magenta); -1 for the default colour.
int KeypadCaptionColour(KeypadGroup group);

// What a click inserts: the caption, with a blank on each side for the word
// operators and the constants; a function's caption followed by "()".
std::u16string KeypadInsertText(KeypadGroup group, int index);

}  // namespace tessarondel
