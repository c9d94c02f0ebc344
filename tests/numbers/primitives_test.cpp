#include "numbers/primitives.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "numbers/builtin_call.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing_builtins::ValueOf;

const std::map<std::string, std::function<double(double, double)>> kPrimitives = {
    {"ToInt32", [](double x, double) { return ToInt32(x); }},
    {"FloorToInt32", [](double x, double) { return FloorToInt32(x); }},
    {"Floor", [](double x, double) { return Floor(x); }},
    {"Truncate", [](double x, double) { return Truncate(x); }},
    {"Sign", [](double x, double) { return Sign(x); }},
    {"Power", [](double x, double y) { return Power(x, y); }},
    {"RoundHalfEven", [](double x, double y) { return RoundHalfEven(x, static_cast<int>(y)); }},
    {"Checked", [](double x, double) { return Checked(x); }},
};

TEST(Primitives, FollowTheirDefinitions) {
    for (const testing_table::Row& row : testing_table::ReadTable("numbers/primitives.tsv")) {
        SCOPED_TRACE(row[0] + "(" + row[1] + ", " + row[2] + ")");
        const auto call = [&] { return kPrimitives.at(row[0])(ValueOf(row[1]), ValueOf(row[2])); };
        EXPECT_EQ(testing_builtins::Outcome(call), testing_builtins::Expected(row[3]));
    }
}

}  // namespace
}  // namespace tessarondel
