#!/usr/bin/env bash
# Start time and memory of the desktop program under a virtual display:
# the time from starting the process to the mapping of its main window, the
# processor time its threads used until then (steadier on a loaded machine),
# and the resident memory after 2 s idle. Three cases: a first-ever start
# (empty settings, empty function folder), a start with 200 .cfd documents,
# and a start that restores a kept session of 1,000 rows (KeepHistory=1).
# Measured in the same run, one start of each in turn: a bare Qt Widgets
# window with a few controls (bench/tools/bare_window.cpp), speedcrunch and
# galculator where installed, and the program of a second build tree when
# one is given (an earlier commit, to compare with).
#   bench/measure_desktop.sh [build-dir] [runs] [earlier-build-dir]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
runs=${2:-10}
earlier=${3:-}

cmake --build "$build" --target tessarondel >/dev/null
work=$(mktemp -d)
xvfb_pid=""
dbus_pid=""
cleanup() {
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
  [ -n "$dbus_pid" ] && kill "$dbus_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

c++ -O2 -std=c++20 -o "$work/map_timer" bench/tools/map_timer.cpp -lxcb
# shellcheck disable=SC2046
c++ -O2 -std=c++20 -fPIC -o "$work/bare_window" bench/tools/bare_window.cpp $(pkg-config --cflags --libs Qt6Widgets)

# A program folder per case: the program with its function folder beside it.
# place <name> <tree>
place() {
  mkdir -p "$work/$1/Custom Function"
  cp "$2/src/platform/tessarondel" "$work/$1/tessarondel"
}
fill() {
  for i in $(seq -w 1 200); do
    printf '%%%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\nf%s\r\n[Parameter List]\r\na, b\r\n[Expression List]\r\ns=a^2+b^2 '"'"' squares\r\nsqrt(s)+%s\r\n[Description]\r\nFunction number %s\r\n' \
      "$i" "$i" "$i" >"$work/$1/Custom Function/f$i.cfd"
  done
}
# A home whose settings keep the session and whose kept session has 1,000
# rows, Result List items and inputs; a case's fourth word names such a home.
mkdir -p "$work/kept/config/Tessarondel" "$work/kept/.local/state/Tessarondel"
printf '[Option]\nKeepHistory=1\n' >"$work/kept/config/Tessarondel/Tessarondel.ini"
awk 'BEGIN {
  print "Tessarondel history 1"
  for (i = 1; i <= 1000; i++) printf "Row\t%d\tx=x+sqrt(2)*sin(%d)\t%.15g\n", i, i, i * 1.1
  for (i = 1; i <= 1000; i++) printf "Result\t%d\t%.15g\n", i, i * 1.1
  for (i = 1; i <= 1000; i++) printf "Input\tx=x+sqrt(2)*sin(%d)\n", i
  print "Variable\tx\t1100\t1100"
  print "Answer\t1100\t1100"
  print "End"
}' >"$work/kept/.local/state/Tessarondel/history"
cases=("tessarondel-empty Tessarondel $work/empty/tessarondel" "tessarondel-full Tessarondel $work/full/tessarondel"
  "tessarondel-kept Tessarondel $work/empty/tessarondel $work/kept")
place empty "$build"
place full "$build" && fill full
if [ -n "$earlier" ]; then
  place earlier-empty "$earlier"
  place earlier-full "$earlier" && fill earlier-full
  cases+=("earlier-empty Tessarondel $work/earlier-empty/tessarondel"
    "earlier-full Tessarondel $work/earlier-full/tessarondel")
fi
cases+=("bare-qt Bare_Qt $work/bare_window")
command -v speedcrunch >/dev/null && cases+=("speedcrunch SpeedCrunch $(command -v speedcrunch)")
command -v galculator >/dev/null && cases+=("galculator galculator $(command -v galculator)")

# -noreset: a server that resets when its last client leaves refuses the next start for a moment.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
xvfb_pid=$!
for _ in $(seq 400); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
# A session bus, as a desktop has one; without it each start would launch its own.
eval "$(dbus-launch --sh-syntax)"
dbus_pid=$DBUS_SESSION_BUS_PID

# One start of each case per round, so a change of load meets all of them alike.
declare -A times rss cpu
for run in $(seq "$runs"); do
  for entry in "${cases[@]}"; do
    read -r label title program seed <<<"$entry"
    home="$work/home-$label-$run"
    mkdir -p "$home/run" "$home/config" && chmod 700 "$home/run"
    [ -n "$seed" ] && cp -a "$seed/." "$home/"
    read -r ms kb cpums < <(HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" \
      XDG_RUNTIME_DIR="$home/run" "$work/map_timer" "${title//_/ }" 2 "$program")
    times[$label]+="$ms "
    rss[$label]+="$kb "
    cpu[$label]+="$cpums "
  done
done

median() { tr ' ' '\n' | sed '/^$/d' | sort -n | awk '{a[NR]=$1} END {print (NR%2) ? a[(NR+1)/2] : (a[NR/2]+a[NR/2+1])/2}'; }
range() { tr ' ' '\n' | sed '/^$/d' | sort -n | sed -n '1p;$p' | paste -sd' ' | sed 's/ /../'; }
echo "nproc $(nproc), load $(cut -d' ' -f1-3 /proc/loadavg), $runs rounds, median (min..max)"
for entry in "${cases[@]}"; do
  read -r label _ <<<"$entry"
  printf '%-18s start %6.1f ms (%s)   processor %5.1f ms (%s)   memory %5.1f MiB (%s kB)\n' "$label" \
    "$(median <<<"${times[$label]}")" "$(range <<<"${times[$label]}")" \
    "$(median <<<"${cpu[$label]}")" "$(range <<<"${cpu[$label]}")" \
    "$(median <<<"${rss[$label]}" | awk '{print $1/1024}')" "$(range <<<"${rss[$label]}")"
done
