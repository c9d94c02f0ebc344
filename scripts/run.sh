#!/usr/bin/env bash
# Installs what is missing, builds, and starts the calculator.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build
if [ -x build/src/platform/tessarondel ] && { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }; then
  exec build/src/platform/tessarondel "$@"
fi
if [ -x build/src/platform/tessarondel ]; then
  echo "No display found: use the command-line calculator, build/src/cli/tessarondel-cli (try --help)." >&2
fi
exec build/src/cli/tessarondel-cli "$@"
