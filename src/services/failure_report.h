#pragma once

#include <exception>
#include <string>

namespace tessarondel {

// A failure that no lower handler took, as the user is told of it: the
// system's error number where the failure carries one, and a description.
struct FailureReport {
    int Number = 0;
    std::string Description;
};

FailureReport DescribeFailure(const std::exception& failure);

// "Unknown Error! ErrorNumber:" and the number, then the description on a line of its own.
std::u16string UnknownErrorText(const FailureReport& report);

}  // namespace tessarondel
