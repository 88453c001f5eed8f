#!/usr/bin/env bash
# Every header of the core compiles alone, so that nobody has to know what to include before it.
set -euo pipefail
compiler=$1
src=$2
failed=0
while IFS= read -r header; do
  if ! echo "#include \"$header\"" | "$compiler" -std=c++20 -I"$src" -fsyntax-only -Wall -Wextra -x c++ -; then
    echo "$header does not compile alone"
    failed=1
  fi
done < <(cd "$src" && find . -name '*.h' -not -path './desktop/*' -not -path './cli/*' -not -path './headless/*' | sed 's|^\./||' | sort)
exit $failed
