#!/usr/bin/env bash
# Takes docs/screenshot.png: the main window after a few evaluations, under a
# virtual display of its own, with empty settings. With a scale factor other
# than 1 the picture is docs/screenshot-scale<factor>.png.
#   bench/screenshot.sh [build-dir] [scale-factor]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
scale=${2:-1}
picture=docs/screenshot.png
[ "$scale" = 1 ] || picture="docs/screenshot-scale$scale.png"
cmake --build "$build" --target tessarondel >/dev/null
work=$(mktemp -d)
xvfb_pid=""
app_pid=""
cleanup() {
  [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
# shellcheck disable=SC2046
c++ -O2 -std=c++20 -fPIC -o "$work/grab_window" bench/tools/grab_window.cpp $(pkg-config --cflags --libs Qt6Gui)

Xvfb -displayfd 3 -screen 0 2048x1536x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
xvfb_pid=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
mkdir -p "$work/run" && chmod 700 "$work/run"
QT_SCALE_FACTOR="$scale" HOME="$work" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/run" "$build/src/platform/tessarondel" &
app_pid=$!
window=$(xdotool search --sync --onlyvisible --name '^Tessarondel$' | head -1)
xdotool windowfocus --sync "$window"
for expression in 'x=2*(3+sin(pi/2))%' '2*(3+4)^2' 'sqrt(2)' 'hyp=5 mod 3' '255'; do
  xdotool type --delay 15 "$expression"
  xdotool key Return
done
sleep 0.5
mkdir -p docs
"$work/grab_window" "$window" "$picture"
echo "$picture written"
