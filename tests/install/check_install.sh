#!/usr/bin/env bash
# Installs the build tree into a scratch root as a package would, under /usr,
# and checks what the desktop and the user meet there: exactly the expected
# files, a clean desktop entry and metainfo, manual pages that render without
# warnings, and documentation for every option the CLI accepts.
# Usage: check_install.sh BUILD_DIR EXPECTED_FILE_LIST
set -euo pipefail
build=$1
expected=$2
for tool in desktop-file-validate appstreamcli man; do
  command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed"; exit 77; }
done

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
DESTDIR=$root cmake --install "$build" --prefix /usr >/dev/null
prefix=$root/usr
failures=0
fail() {
  echo "FAIL: $*"
  failures=$((failures + 1))
}

# The manual's pages follow the program's tables and its own tests check them;
# here it counts as one folder.
installed=$(cd "$prefix" && find . -mindepth 1 \( -type d -empty -printf '%P/\n' \) -o \( ! -type d -printf '%P\n' \) |
  sed 's|^share/tessarondel/manual/.*|share/tessarondel/manual/|' | sort -u)
diff <(grep -v '^#' "$expected" | sed '/^$/d' | sort) <(echo "$installed") ||
  fail "the installed files differ from $expected (< expected, > installed)"

id=com.larkmoor.Tessarondel
report=$(desktop-file-validate "$prefix/share/applications/$id.desktop" 2>&1) && [ -z "$report" ] ||
  fail "desktop-file-validate: $report"
report=$(appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" 2>&1) &&
  ! grep -q '^[EW]:' <<<"$report" || fail "appstreamcli validate: $report"
for page in "$prefix"/share/man/man1/*.1.gz; do
  report=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$page" 2>&1 >/dev/null) && [ -z "$report" ] ||
    fail "man -l $page: $report"
done

cli=$prefix/bin/tessarondel-cli
[ "$("$cli" 'sqrt(2)')" = 1.4142135623731 ] || fail "the installed tessarondel-cli does not evaluate sqrt(2)"
newest=$(grep -o -m1 '<release version="[^"]*"' "$prefix/share/metainfo/$id.metainfo.xml" | cut -d'"' -f2)
[[ $("$cli" --version) == "$newest "* ]] || fail "the newest release in the metainfo, $newest, is not the program's version"
for option in $("$cli" --help | grep -o -- '--[a-z][a-z-]*' | sort -u); do
  zgrep -q -- "${option//-/\\\\-}" "$prefix/share/man/man1/tessarondel-cli.1.gz" || fail "tessarondel-cli(1) lacks $option"
  grep -qw -- "$option" "$prefix/share/bash-completion/completions/tessarondel-cli" || fail "the completion lacks $option"
done
exit $((failures > 0))
