#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. With --dekking: line coverage of the core, per
# folder, instead.
set -euo pipefail
cd "$(dirname "$0")"
stap() { printf '\n== %s\n' "$*"; }
taken=$(nproc)

scripts/installeer.sh
if [ "${1:-}" = --dekking ]; then exec scripts/dekking.sh; fi
[ $# -eq 0 ] || { echo "Gebruik: ./test.sh [--dekking]" >&2; exit 64; }

stap "Indeling van de mappen"
scripts/controleer-lagen.sh

stap "Opmaak van de bronnen"
scripts/controleer-opmaak.sh

for preset in debug release fuzz; do
  stap "Bouwen: $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$taken"
done

stap "Regels van clang-tidy"
scripts/controleer-tidy.sh

proef() {  # preset, locale
  stap "Proeven: $1, $2"
  LC_ALL=$2 ctest --test-dir "build/$1" --output-on-failure -j "$taken" --no-tests=error
}
export LOCPATH="$PWD/build/locales"
scripts/maak-kommalocale.sh "$LOCPATH"
proef debug C.UTF-8
proef debug nl_NL.UTF-8
proef release nl_NL.UTF-8

stap "Lezers bestoken (${MURVANE_FUZZ_SECONDEN:=30} s elk)"
scripts/bestook.sh "$MURVANE_FUZZ_SECONDEN"

stap "Meetprogramma start"
build/release/bin/murvane-bench --benchmark_min_time=0.01 >/dev/null
build/release/bin/murvane-vensterbench >/dev/null

stap "run.sh zonder beeldscherm"
env -u DISPLAY -u WAYLAND_DISPLAY ./run.sh > build/run.txt
grep -q 'GELUIDSDRUKNIVEAU:' build/run.txt

echo
echo "Alles in orde."
