#!/usr/bin/env bash
# Every header compiles alone, so that nobody has to know what to include before it: check_headers.sh COMPILER SRC WORK.
# WORK keeps one source a header. The headers of desktop/ need Qt's flags, and are compiled with it alone: each by the
# source of its name, which includes it first. Those of another system's port and windows are compiled where that is.
set -euo pipefail
export compiler=$1 src=$2 work=$3
mkdir -p "$work"

check_one() {
  local unit="$work/${1//\//-}.cpp"
  echo "#include \"$1\"" >"$unit"
  "$compiler" -std=c++20 -I"$src" -O0 -Wall -Wextra -c "$unit" -o "${unit%.cpp}.o" && return
  echo "$1 does not compile alone"
  return 1
}
export -f check_one

others=(-path './platform/win32/*' -o '(' -path './win32/*' -not -name boxes.h ')')
case $("$compiler" -dumpmachine) in *mingw*) others=(-path './platform/posix/*') ;; esac
headers=$(cd "$src" && find . -name '*.h' -not -path './desktop/*' -not \( "${others[@]}" \) | sed 's|^\./||' | sort)
[ -n "$headers" ] || { echo "no headers in $src"; exit 1; }
xargs -P2 -I{} bash -c 'check_one "$1"' - {} <<<"$headers"
