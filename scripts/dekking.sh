#!/usr/bin/env bash
# Line coverage of the core per folder, measured by the tests.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset dekking >/dev/null
cmake --build --preset dekking -j "$(nproc)"
find build/dekking -name '*.gcda' -delete
ctest --test-dir build/dekking --output-on-failure -j "$(nproc)" --no-tests=error

filters=()
for map in basis project calc catalogue editor estimators reports shell cli; do filters+=(--filter "$map/"); done
gcovr --root . "${filters[@]}" --exclude-throw-branches --csv build/dekking/dekking.csv build/dekking >/dev/null
awk -F, 'NR > 1 { split($1, deel, "/"); regels[deel[1]] += $2; gedekt[deel[1]] += $3 }
  END {
    for (map in regels) {
      printf "%-12s %5d van %5d regels  %5.1f %%\n", map, gedekt[map], regels[map], 100 * gedekt[map] / regels[map]
      if (map != "cli") { alle += regels[map]; goed += gedekt[map] }
    }
    printf "%-12s %5d van %5d regels  %5.1f %%\n", "kern", goed, alle, 100 * goed / alle
  }' build/dekking/dekking.csv | sort
