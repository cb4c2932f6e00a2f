#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program with a project: ./run.sh [PROJECT.mrv]
# Without a name the sample project of an office is taken. Without a display the project is calculated and its
# report printed.
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
project=$(realpath "${1:-$hier/data/kantoor.mrv}")

"$hier/scripts/installeer.sh"
(
  cd "$hier"
  cmake --preset release -DMURVANE_TESTS=OFF -DMURVANE_BENCH=OFF -B build/programma >/dev/null
  cmake --build build/programma -j "$(nproc)" >&2
) >&2

programma=$hier/build/programma/bin
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$programma/murvane-cli" reken "$project"
fi
cd "$programma/data" # the program's current directory is that of its settings and catalogues
exec "$programma/murvane" "$project"
