#pragma once

#include <gtest/gtest.h>

#include <string>

namespace tessarondel::testing_builtins {

// Names parameterised tests after their row's label.
template <typename Row>
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return info.param.label;
}

}  // namespace tessarondel::testing_builtins
