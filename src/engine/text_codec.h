#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

// UTF-8 at the edges, UTF-16 inside. Malformed UTF-8 becomes U+FFFD per bad
// byte, so nothing is lost silently and nothing crashes.
std::u16string ToUtf16(std::string_view utf8);
// The same into an existing text, reusing its room.
void AssignUtf16(std::u16string& out, std::string_view utf8);
std::string ToUtf8(std::u16string_view utf16);
// The same appended to an existing text.
void AppendUtf8(std::string& out, std::u16string_view utf16);

// Appends one code point as UTF-8.
void AppendUtf8(std::string& out, char32_t cp);

}  // namespace tessarondel
