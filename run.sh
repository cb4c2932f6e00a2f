#!/usr/bin/env bash
# Installs what is missing, builds, and calculates a project and prints its report: ./run.sh [PROJECT.mrv]
# Without a name the sample project of an office is taken.
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
project=${1:-$hier/data/kantoor.mrv}

"$hier/scripts/installeer.sh"
(
  cd "$hier"
  cmake --preset release -DMURVANE_TESTS=OFF -DMURVANE_BENCH=OFF -B build/programma >/dev/null
  cmake --build build/programma -j "$(nproc)" >&2
) >&2

exec "$hier/build/programma/bin/murvane-cli" reken "$project"
