#include "services/version_text.h"

#include <gtest/gtest.h>

namespace tessarondel {
namespace {

struct VersionRow {
    const char* name;
    std::u16string fetched;
    VersionVerdict verdict;
};

class VersionJudgement : public ::testing::TestWithParam<VersionRow> {};

TEST_P(VersionJudgement, CleansAndCompares) {
    EXPECT_EQ(JudgeVersion(CleanVersionText(GetParam().fetched)), GetParam().verdict);
}

INSTANTIATE_TEST_SUITE_P(
    Version, VersionJudgement,
    ::testing::Values(VersionRow{"Same", u"1.2.6688 Build 1228", VersionVerdict::Latest},
                      VersionRow{"BlanksOutsideBraces", u"  {1.2.6688 Build 1228}  ", VersionVerdict::Latest},
                      VersionRow{"BracesInside", u"1.2.66{88 Bu}ild 1228", VersionVerdict::Latest},
                      VersionRow{"CrLfAtEndIsNewer", u"1.2.6688 Build 1228\r\n", VersionVerdict::Newer},
                      VersionRow{"OtherCaseIsNewer", u"1.2.6688 build 1228", VersionVerdict::Newer},
                      VersionRow{"OlderIsNewerToo", u"1.0.1 Build 1", VersionVerdict::Newer},
                      VersionRow{"Empty", u"", VersionVerdict::Unknown},
                      VersionRow{"OnlyBraces", u" {} ", VersionVerdict::Unknown}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Version, BlanksInsideBracesAreNotTrimmed) { EXPECT_EQ(CleanVersionText(u"{ 1.2 }"), u" 1.2 "); }

}  // namespace
}  // namespace tessarondel
