#!/usr/bin/env bash
# Runs the real program on a virtual display of its own and ends or reaches it
# the way a desktop session does. Usage: desktop_session_test.sh BINARY CASE
set -euo pipefail
binary=$1
case=$2

for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "$tool is needed"; exit 77; }
done

work=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  rm -rf "$work"
}
trap cleanup EXIT

# -displayfd: the server picks a free display and writes its number.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
export DISPLAY=":$(cat "$work/display")"
export QT_QPA_PLATFORM=xcb HOME="$work" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/run"
mkdir -m 700 "$work/run"
settings="$work/config/Tessarondel/Tessarondel.ini"

fail() { echo "FAIL: $*"; exit 1; }

start_program() {
  "$binary" &
  pids+=($!)
  program=$!
}

main_window() { xdotool search --sync --onlyvisible --name '^Tessarondel$' | head -n 1; }

# SIGTERM, SIGHUP, SIGINT: what Exit does, the moved window's place is stored
# (200 and 150 pixels at 96 dpi are 3000 and 2250 twips), and status 0.
ends_like_exit_on() {
  start_program
  xdotool windowmove --sync "$(main_window)" 200 150
  sleep 0.5
  kill -s "$1" "$program"
  status=0
  wait "$program" || status=$?
  [ "$status" -eq 0 ] || fail "SIG$1 ended the program with status $status"
  grep -qx 'x=3000' "$settings" && grep -qx 'y=2250' "$settings" || fail "SIG$1: settings not written: $(cat "$settings" 2>&1)"
}

case $case in
  signals)
    for signal in TERM HUP INT; do
      rm -f "$settings"
      ends_like_exit_on "$signal"
    done
    ;;
  *) fail "unknown case $case" ;;
esac
echo PASS
