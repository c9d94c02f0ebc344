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
  xvfb xdotool x11-utils python3     # the end-to-end tests on a virtual display (python3: a stand-in tray)
  dbus-x11 at-spi2-core python3-pyatspi
  locales                            # a comma-decimal locale proves number texts ignore locales
  desktop-file-utils appstream man-db # the install checks: desktop entry, metainfo, manual pages
  dpkg-dev file                      # the .deb's dependency list (dpkg-shlibdeps)
)

ensure_test_locale() {
  locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$' && return 0
  command -v locale-gen >/dev/null || return 0
  local run=()
  [ "$(id -u)" -ne 0 ] && run=(sudo)
  "${run[@]}" sed -i 's/^# *de_DE.UTF-8 UTF-8/de_DE.UTF-8 UTF-8/' /etc/locale.gen
  "${run[@]}" locale-gen >/dev/null || true
}

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then ensure_test_locale; exit 0; fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
ensure_test_locale
