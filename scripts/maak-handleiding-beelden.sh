#!/usr/bin/env bash
# Makes the pictures of the manual in help/beelden anew: those that a page shows, out of all pictures of the windows.
# Builds what it needs in build/release, and needs no display. BOUW=debug takes another preset.
set -euo pipefail
cd "$(dirname "$0")/.."
bouw=${BOUW:-release}

cmake --preset "$bouw" >/dev/null
cmake --build --preset "$bouw" --target murvane-venstertests -- -j2
ruw=$(mktemp -d)
trap 'rm -rf "$ruw"' EXIT
QT_QPA_PLATFORM=offscreen MURVANE_BEELDEN=$ruw "build/$bouw/bin/murvane-venstertests" --gtest_brief=1 \
  --gtest_filter='Rondgang.CanBePictured:HandleidingBeelden.*'

mkdir -p help/beelden
rm -f help/beelden/*.png
# A picture that no page shows is left out.
for naam in $(grep -oh 'src="beelden/[^"]*\.png"' help/*.html | sed 's/.*beelden\/\(.*\)\.png"/\1/' | sort -u); do
  # A window has few colours; without dates two runs give the same bytes.
  convert "$ruw/$naam.png" -strip +dither -colors 64 -define png:compression-level=9 \
    -define png:exclude-chunks=date,time "PNG8:help/beelden/$naam.png"
done
du -sh help/beelden
