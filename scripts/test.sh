#!/usr/bin/env bash
# Installs what is missing, builds everything and runs the whole test suite:
# the unit tests once more under AddressSanitizer and UBSan, a short run of
# each fuzz target when clang is present, then every test through CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

jobs=$(nproc)
extra=()

# Sanitizer build of the Qt-free layers.
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTESSARONDEL_SANITIZE=ON \
  -DTESSARONDEL_BUILD_GUI=OFF -DTESSARONDEL_BUILD_BENCH=OFF >/dev/null
cmake --build build-asan -j "$jobs"
extra+=("-DTESSARONDEL_SANITIZED_BUILD=$PWD/build-asan")

# Fuzz targets need clang's libFuzzer.
if command -v clang++ >/dev/null; then
  CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTESSARONDEL_FUZZ=ON \
    -DTESSARONDEL_BUILD_GUI=OFF -DTESSARONDEL_BUILD_TESTS=OFF -DTESSARONDEL_BUILD_BENCH=OFF >/dev/null
  cmake --build build-fuzz -j "$jobs" --target fuzz_targets
  extra+=("-DTESSARONDEL_FUZZ_BUILD=$PWD/build-fuzz")
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release "${extra[@]}" >/dev/null
cmake --build build -j "$jobs"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j "$jobs"
