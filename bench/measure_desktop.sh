#!/usr/bin/env bash
# Start time and memory of the desktop program under a virtual display:
# the time from starting the process to the mapping of its main window, and
# the resident memory after 2 s idle. Two cases: a first-ever start (empty
# settings, empty function folder) and a start with 200 .cfd documents. Each
# case is measured beside speedcrunch in the same run when it is installed.
#   bench/measure_desktop.sh [build-dir] [runs]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
runs=${2:-10}

cmake --build "$build" --target tessarondel tessarondel-cli >/dev/null
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

# Two self-contained program folders, as cmake --install lays them out.
cmake --install "$build" --prefix "$work/empty" >/dev/null
cmake --install "$build" --prefix "$work/full" >/dev/null
for i in $(seq -w 1 200); do
  printf '%%%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\nf%s\r\n[Parameter List]\r\na, b\r\n[Expression List]\r\ns=a^2+b^2 '"'"' squares\r\nsqrt(s)+%s\r\n[Description]\r\nFunction number %s\r\n' \
    "$i" "$i" "$i" >"$work/full/Custom Function/f$i.cfd"
done

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
xvfb_pid=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
# A session bus, as a desktop has one; without it each start would launch its own.
eval "$(dbus-launch --sh-syntax)"
dbus_pid=$DBUS_SESSION_BUS_PID

# measure <label> <window title> <program>: prints median and range of both figures.
measure() {
  local label=$1 title=$2 program=$3 times=() rss=()
  for run in $(seq "$runs"); do
    local home="$work/home-$label-$run"
    mkdir -p "$home/run" && chmod 700 "$home/run"
    read -r ms kb < <(HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_RUNTIME_DIR="$home/run" \
      "$work/map_timer" "$title" 2 "$program")
    times+=("$ms")
    rss+=("$kb")
  done
  local t r
  t=$(printf '%s\n' "${times[@]}" | sort -n)
  r=$(printf '%s\n' "${rss[@]}" | sort -n)
  printf '%-28s start %6.1f ms (%s..%s)   memory %6.1f MB (%s..%s kB)\n' "$label" \
    "$(echo "$t" | awk '{a[NR]=$1} END {print (NR%2) ? a[(NR+1)/2] : (a[NR/2]+a[NR/2+1])/2}')" \
    "$(echo "$t" | head -1)" "$(echo "$t" | tail -1)" \
    "$(echo "$r" | awk '{a[NR]=$1} END {m=(NR%2) ? a[(NR+1)/2] : (a[NR/2]+a[NR/2+1])/2; print m/1024}')" \
    "$(echo "$r" | head -1)" "$(echo "$r" | tail -1)"
}

echo "nproc $(nproc), load $(cut -d' ' -f1-3 /proc/loadavg), $runs runs each, median (min..max)"
speedcrunch=$(command -v speedcrunch || true)
[ -z "$speedcrunch" ] && echo "speedcrunch not installed: measuring Tessarondel alone"
for case in empty full; do
  measure "tessarondel-$case" Tessarondel "$work/$case/tessarondel"
  [ -n "$speedcrunch" ] && measure "speedcrunch-$case" SpeedCrunch "$speedcrunch"
done
