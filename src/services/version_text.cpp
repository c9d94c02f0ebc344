#include "services/version_text.h"

#include <algorithm>

#include "numbers/text_rules.h"

namespace tessarondel {

std::u16string CleanVersionText(std::u16string_view fetched) {
    std::u16string text(TrimBlanks(fetched));
    std::erase(text, u'{');
    std::erase(text, u'}');
    return text;
}

VersionVerdict JudgeVersion(std::u16string_view cleaned) {
    if (cleaned == BuildVersionText) return VersionVerdict::Latest;
    if (cleaned.empty()) return VersionVerdict::Unknown;
    return VersionVerdict::Newer;
}

std::u16string NewVersionQuestion(std::u16string_view cleaned) {
    std::u16string question = u"The latest version of Tessarondel is [";
    question.append(cleaned).append(u"]\r\nUpgrade to the latest version now?");
    return question;
}

}  // namespace tessarondel
