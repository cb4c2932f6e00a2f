#!/usr/bin/env bash
# Makes the pictures in docs/beelden anew: every window with the samples in it, light and dark, and at 200 %, and
# a page of the printed form.
# Builds what it needs in build/release, and needs no display.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release --target murvane-venstertests murvane-druk
ruw=$(mktemp -d)
trap 'rm -rf "$ruw"' EXIT

maak() {  # scale, tests
  QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$1 MURVANE_BEELDEN=$ruw \
    build/release/bin/murvane-venstertests --gtest_brief=1 --gtest_filter="$2"
}
maak 1 'Rondgang.CanBePictured*'
maak 2 'Rondgang.CanBePictured'
QT_QPA_PLATFORM=offscreen build/release/bin/murvane-druk data/kantoor.mrv --pdf "$ruw/formulier.pdf" --decimaal komma
pdftoppm -r 75 -png -f 2 -l 2 -singlefile "$ruw/formulier.pdf" "$ruw/formulier"

mkdir -p docs/beelden
find docs/beelden -name '*.png' ! -name '*-voor.png' -delete  # what looked otherwise before stays to compare
for beeld in "$ruw"/*.png; do
  # A window has few colours; without dates two runs give the same bytes.
  convert "$beeld" -strip +dither -colors 96 -define png:compression-level=9 \
    -define png:exclude-chunks=date,time "PNG8:docs/beelden/$(basename "$beeld")"
done
du -sh docs/beelden
