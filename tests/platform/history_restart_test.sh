#!/usr/bin/env bash
# The kept session across a restart, with the real program on a virtual
# display of its own: with KeepHistory=1, evaluate a=6*7 and a+1, exit, start
# again, recall a+1 with Up, evaluate it and end by SIGTERM; the export then
# holds all three rows and the kept file numbers the new row 3. Without the setting nothing is
# written under $XDG_STATE_HOME/Tessarondel.
#   history_restart_test.sh <tessarondel binary>
set -euo pipefail
program=$1
command -v Xvfb >/dev/null && command -v xdotool >/dev/null || { echo "Xvfb and xdotool are needed"; exit 77; }
work=$(mktemp -d)
xvfb_pid=""
cleanup() {
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
xvfb_pid=$!
for _ in $(seq 400); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")" QT_QPA_PLATFORM=xcb HOME="$work/home"
export XDG_CONFIG_HOME="$HOME/config" XDG_STATE_HOME="$HOME/state" XDG_RUNTIME_DIR="$HOME/run"
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"

# run [--term] <keys...>: starts the program, sends each argument (text to
# type, key:NAMES or save:FILE), ends it with Ctrl+Q (SIGTERM with --term) and
# waits for the end.
run() {
  local end="xdotool key ctrl+q"
  [ "$1" = --term ] && { end='kill -TERM $pid'; shift; }
  "$program" &
  local pid=$! window
  window=$(xdotool search --sync --onlyvisible --name '^Tessarondel$' | head -1)
  xdotool windowfocus --sync "$window"
  for keys in "$@"; do
    case $keys in
      key:*) xdotool key --delay 50 ${keys#key:} ;;
      save:*) xdotool key ctrl+s && xdotool search --sync --name '^Save.As$' >/dev/null &&
        xdotool type --delay 10 "${keys#save:}" && xdotool key Return && sleep 0.5 &&
        xdotool windowfocus --sync "$window" ;;
      *) xdotool type --delay 20 "$keys" ;;
    esac
  done
  eval "$end"
  wait "$pid"
}

state="$XDG_STATE_HOME/Tessarondel"
run "1+1" key:Return
[ ! -e "$state" ] || { echo "FAIL: written under $state with the option off"; exit 1; }

mkdir -p "$XDG_CONFIG_HOME/Tessarondel"
printf '[Option]\nKeepHistory=1\n' >"$XDG_CONFIG_HOME/Tessarondel/Tessarondel.ini"
run "a=6*7" key:Return "a+1" key:Return
[ "$(stat -c %a "$state/history")" = 600 ] || { echo "FAIL: history file mode"; exit 1; }
run --term key:Up key:Return "save:$work/list.txt"
expected=$'a=6*7\t42\r\na+1\t43\r\na+1\t43\r'
[ "$(cat "$work/list.txt")" = "$expected" ] || { echo "FAIL: export"; cat -A "$work/list.txt"; exit 1; }
grep -q $'^Row\t3\ta+1\t43$' "$state/history" || { echo "FAIL: row 3"; cat "$state/history"; exit 1; }
grep -q $'^Variable\ta\t42\t42$' "$state/history" || { echo "FAIL: variable"; exit 1; }
echo "kept session restored"
