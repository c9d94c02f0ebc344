#include "services/failure_report.h"

#include <cerrno>
#include <new>
#include <system_error>

#include "engine/text_codec.h"

namespace tessarondel {

FailureReport DescribeFailure(const std::exception& failure) {
    if (const auto* system = dynamic_cast<const std::system_error*>(&failure)) {
        return {system->code().value(), system->what()};
    }
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) {
        return {ENOMEM, std::generic_category().message(ENOMEM)};
    }
    return {0, failure.what()};
}

std::u16string UnknownErrorText(const FailureReport& report) {
    return ToUtf16("Unknown Error! ErrorNumber:" + std::to_string(report.Number) + "\n" + report.Description);
}

}  // namespace tessarondel
