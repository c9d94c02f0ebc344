#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

#include "numbers/numeric_helpers.h"

namespace tessarondel {

namespace {

constexpr double SecondsPerDay = 86400;

// Seconds since midnight as a single-precision number, as the generator's
// seed: two calls within its resolution draw the same number.
float SecondsOfDay() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const double seconds = std::chrono::duration<double>(sinceEpoch).count();
    return static_cast<float>(std::fmod(seconds, SecondsPerDay));
}

// A single-precision number in [0, 1): 24 random bits below the point.
float DrawFraction(std::uint32_t seed) {
    std::mt19937 generator(seed);
    return static_cast<float>(generator() >> 8) / 16777216.0F;
}

}  // namespace

double RandomTimes(double x) {
    const float seconds = SecondsOfDay();
    std::uint32_t seed = 0;
    std::memcpy(&seed, &seconds, sizeof seed);
    return std::abs(x) * static_cast<double>(DrawFraction(seed));
}

}  // namespace tessarondel
