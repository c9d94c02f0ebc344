#pragma once

#include <string>

namespace tessarondel {

// Folds the full-width forms of ASCII characters, the ideographic full stop
// and space, and the curly quotes to their ASCII counterparts, in place.
void FoldSource(std::u16string& text);

}  // namespace tessarondel
