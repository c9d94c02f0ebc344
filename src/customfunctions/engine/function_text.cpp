#include "customfunctions/engine/function_text.h"

namespace tessarondel {

std::size_t FindText(std::u16string_view text, std::u16string_view needle, std::size_t start) {
    if (start < 1 || start > text.size() + 1) return 0;
    const auto found = text.find(needle, start - 1);
    return found == std::u16string_view::npos ? 0 : found + 1;
}

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to) {
    if (from.empty()) return std::u16string(text);
    std::u16string result;
    result.reserve(text.size());
    std::size_t at = 0;
    for (auto found = text.find(from); found != std::u16string_view::npos; found = text.find(from, at)) {
        result.append(text.substr(at, found - at));
        result.append(to);
        at = found + from.size();
    }
    result.append(text.substr(at));
    return result;
}

std::vector<std::u16string> SplitText(std::u16string_view text, std::u16string_view separator) {
    std::vector<std::u16string> pieces;
    if (text.empty()) return pieces;
    std::size_t at = 0;
    for (auto found = text.find(separator); found != std::u16string_view::npos; found = text.find(separator, at)) {
        pieces.emplace_back(text.substr(at, found - at));
        at = found + separator.size();
    }
    pieces.emplace_back(text.substr(at));
    return pieces;
}

std::size_t CountOccurrences(std::u16string_view text, char16_t c) {
    std::size_t count = 0;
    for (char16_t each : text) count += each == c ? 1 : 0;
    return count;
}

}  // namespace tessarondel
