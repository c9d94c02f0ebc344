#!/usr/bin/env bash
# Times tessarondel-cli evaluating 10,000 mixed expressions in one process
# (some of them end in errors on purpose, so the exit status is ignored).
# Usage: bench/cli_throughput.sh [BUILD_DIR]   (default: build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cli="$build/src/cli/tessarondel-cli"
input=$(mktemp)
trap 'rm -f "$input"' EXIT
python3 bench/generate_cli_expressions.py 10000 >"$input"
hyperfine --ignore-failure --warmup 3 --runs 30 "$cli < $input > /dev/null"
