#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

// The 8-bit code page of the function documents. Bytes 0x80 to 0x9F carry the
// code page's punctuation (0x80 the euro sign, 0x93/0x94 curly quotes); its
// five unassigned bytes map to the control characters of the same code, as
// Windows does, so every byte survives a round trip.
std::u16string DecodeWindows1252(std::string_view bytes);

// A character outside the code page becomes "?".
std::string EncodeWindows1252(std::u16string_view text);

}  // namespace tessarondel
