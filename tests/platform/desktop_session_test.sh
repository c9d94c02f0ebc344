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
  for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[i]}" 2>/dev/null && wait "${pids[i]}" 2>/dev/null || true; done
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

# A notification area, so that a frame close hides the window to the tray.
start_tray() {
  python3 "$(dirname "$0")/x_desktop.py" tray >"$work/tray" &
  pids+=($!)
  for _ in $(seq 100); do [ -s "$work/tray" ] && break; sleep 0.1; done
}

visible_windows() { xdotool search --onlyvisible --name '^Tessarondel$' 2>/dev/null | wc -l; }
wait_until_visible_count() {
  for _ in $(seq 100); do [ "$(visible_windows)" -eq "$1" ] && return 0; sleep 0.1; done
  fail "$2"
}

# run_session END KEYS...: starts the program, types each argument (key:NAMES
# presses keys) and ends it with END, ctrl+q or a signal's name, and status 0.
run_session() {
  local end=$1 keys
  shift
  start_program
  xdotool windowfocus --sync "$(main_window)"
  for keys in "$@"; do
    case $keys in
      key:*) xdotool key --delay 50 ${keys#key:} ;;
      *) xdotool type --delay 20 "$keys" ;;
    esac
  done
  sleep 0.5
  if [ "$end" = ctrl+q ]; then xdotool key ctrl+q; else kill -s "$end" "$program"; fi
  local status=0
  wait "$program" || status=$?
  [ "$status" -eq 0 ] || fail "the session ended with status $status"
}

case $case in
  keep-history)
    # Off, nothing is written under the state folder. With KeepHistory=1 the rows, the variable and
    # the inputs outlive the run: after a restart ended by SIGTERM, Up recalls a+1, a is still 42 and
    # the new row is number 3.
    export XDG_STATE_HOME="$work/state"
    kept="$XDG_STATE_HOME/Tessarondel/history"
    run_session ctrl+q "1+1" key:Return
    [ ! -e "$XDG_STATE_HOME/Tessarondel" ] || fail "written under $XDG_STATE_HOME/Tessarondel with the option off"
    printf '[Option]\nKeepHistory=1\n' >"$settings"
    run_session ctrl+q "a=6*7" key:Return "a+1" key:Return
    [ "$(stat -c %a "$kept")" = 600 ] || fail "kept file mode $(stat -c %a "$kept")"
    run_session TERM key:Up key:Return
    expected=$'Row\t1\ta=6*7\t42\nRow\t2\ta+1\t43\nRow\t3\ta+1\t43\nVariable\ta\t42\t42'
    [ "$(grep -E '^(Row|Variable)' "$kept")" = "$expected" ] || fail "kept session: $(cat "$kept")"
    ;;
  signals)
    for signal in TERM HUP INT; do
      rm -f "$settings"
      ends_like_exit_on "$signal"
    done
    ;;
  second-launch)
    # The window hidden to the tray comes back when a second launch is answered No.
    # The channel's socket file as a crashed run leaves it, for the first instance to take over.
    python3 -c 'import socket, sys; socket.socket(socket.AF_UNIX).bind(sys.argv[1])' \
      "$XDG_RUNTIME_DIR/$TESSARONDEL_APP_ID-$(id -u).socket"
    start_tray
    start_program
    python3 "$(dirname "$0")/x_desktop.py" close "$(main_window)"
    wait_until_visible_count 0 "a frame close did not hide the window"
    first=$program
    start_program
    question=$(xdotool search --sync --onlyvisible --name '^Information$' | head -n 1)
    xdotool windowfocus --sync "$question" key n
    status=0
    wait "$program" || status=$?
    [ "$status" -eq 0 ] || fail "the second launch ended with status $status"
    wait_until_visible_count 1 "the first window did not come back"
    kill -0 "$first" || fail "the first instance is gone"
    ;;
  help-key)
    # Without help.chm, F1 opens the manual in the program's own window.
    start_program
    xdotool windowfocus --sync "$(main_window)" key F1
    timeout 20 xdotool search --sync --onlyvisible --name '^Tessarondel Help$' >/dev/null || fail "F1 did not open Tessarondel Help"
    ;;
  type-save-exit)
    # Typing and Enter evaluate, Ctrl+S saves the list, Ctrl+Q ends with status 0 and leaves the
    # settings readable by their owner only.
    start_program
    window=$(main_window)
    xdotool windowfocus --sync "$window" type --delay 20 '2*(3+4)^2'
    xdotool key Return ctrl+s
    xdotool search --sync --name '^Save.As$' >/dev/null
    xdotool type --delay 10 "$work/list.txt"
    xdotool key Return
    for _ in $(seq 100); do [ -s "$work/list.txt" ] && break; sleep 0.1; done
    [ "$(cat "$work/list.txt")" = $'2*(3+4)^2\t98\r' ] || fail "the saved list: $(cat -A "$work/list.txt")"
    xdotool windowfocus --sync "$window" key ctrl+q
    status=0
    wait "$program" || status=$?
    [ "$status" -eq 0 ] || fail "Ctrl+Q ended the program with status $status"
    [[ $(stat -c %a "$settings") == ?00 ]] || fail "settings mode $(stat -c %a "$settings")"
    grep -qx 'EL=1' "$settings" && grep -qx 'Remoteport=80' "$settings" || fail "settings: $(cat "$settings")"
    ;;
  *) fail "unknown case $case" ;;
esac
echo PASS
