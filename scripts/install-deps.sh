#!/usr/bin/env bash
# Installs the Debian packages Tessarondel needs to build, test and run,
# skipping what is already there. Needs root or sudo for the install itself.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev                       # Widgets, Network, Test
  libgtest-dev libgmock-dev googletest
  libbenchmark-dev
  libedit-dev                        # line editing in tessarondel-cli
  clang libclang-rt-dev              # libFuzzer and the sanitizer runs
  xvfb xdotool x11-utils             # the end-to-end test on a virtual display
  dbus-x11 at-spi2-core python3-pyatspi
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
