#!/usr/bin/env bash
# Holds the sources of the programs against the rules of .clang-tidy, as the release preset compiles them; that one is
# built first. A source that was found clean is passed over until it, a header of ours that it includes, its compile
# command, the rules or the installed packages change: build/tidy remembers by content.
set -euo pipefail
cd "$(dirname "$0")/.."
bouw=build/release
export bouw

# Source, a tab, and all of ours that it was compiled from, separated by tabs. Where a path starts depends on ccache.
bronnen() {
  ninja -C "$bouw" -t deps | awk -v hier="$PWD/" -v bouw="$bouw/" '
    function eigen(pad) {
      if (index(pad, hier) == 1) return substr(pad, length(hier) + 1)
      if (sub(/^\.\.\/\.\.\//, "", pad)) return pad
      return pad ~ /^\// ? "" : bouw pad
    }
    function klaar() {
      if (bron ~ /\.cpp$/ && bron !~ /^(build|tests|bench|fuzz)\//) print bron "\t" rij
      bron = rij = ""
    }
    /^[^ ]/ { klaar(); next }
    /^    / { pad = eigen(substr($0, 5)); if (pad == "") next
              if (bron == "") bron = pad
              rij = rij (rij == "" ? "" : "\t") pad }
    END { klaar() }'
}

sleutel() {  # source, what it was compiled from
  local bron=$1 IFS=$'\t'
  {
    echo "$algemeen"
    grep -F -B 1 "\"file\": \"$PWD/$bron\"" "$bouw/compile_commands.json" || true
    sha256sum -- $2
  } | sha256sum
}

toets() {  # a row of bronnen
  local bron=${1%%$'\t'*} schoon verslag
  schoon=build/tidy/$bron.schoon
  local is; is=$(sleutel "$bron" "${1#*$'\t'}")
  if [ "$(cat "$schoon" 2>/dev/null)" = "$is" ]; then return 0; fi
  mkdir -p "$(dirname "$schoon")"
  if ! verslag=$(clang-tidy-14 -p "$bouw" --quiet "$bron" 2>&1); then
    printf '%s\n' "$verslag" >&2
    return 1
  fi
  echo "$is" >"$schoon"
}
export -f sleutel toets

algemeen=$(cat .clang-tidy; grep -v '^#' scripts/pakketten.txt | xargs dpkg-query -W)
export algemeen
rijen=$(bronnen)
[ -n "$rijen" ] || { echo "controleer-tidy.sh: bouw eerst: cmake --build --preset release" >&2; exit 1; }
printf '%s\n' "$rijen" | tr '\n' '\0' | xargs -0 -P "$(nproc)" -n 1 bash -c 'set -euo pipefail; toets "$1"' _
