#!/usr/bin/env bash
# Completes command lines with the made completion, as a user would by the Tab key: aanvulling.sh MAP
set -euo pipefail
map=$(realpath "$1")
werk=$(mktemp -d)
trap 'rm -rf "$werk"' EXIT
cd "$werk"
mkdir "mijn map"
touch "een.mrv" "TWEE.MRV" "catalogus.dat" "drie.json" "brief.txt"

source /usr/share/bash-completion/bash_completion
source "$map/bash/murvane-cli"
source "$map/bash/murvane"
source "$map/bash/murvane-druk"

# What the last word of the line becomes, sorted, on one line.
vul_aan() {
  local -a COMP_WORDS=("$@") COMPREPLY=()
  local COMP_CWORD=$(($# - 1)) COMP_LINE="$*" COMP_TYPE=9 COMP_KEY=9
  local COMP_POINT=${#COMP_LINE}
  "_${1//-/_}" 2>/dev/null || true
  if [ ${#COMPREPLY[@]} -gt 0 ]; then printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort | paste -sd'|'; fi
}

fouten=0
verwacht() {  # what comes, command line
  local wordt
  wordt=$(vul_aan "${@:2}")
  [ "$wordt" = "$1" ] || { echo "$(printf '[%s] ' "${@:2}"): '$wordt' in plaats van '$1'" >&2; fouten=1; }
}

verwacht 'catalogus|controleer|maak|overzicht|reken|schat|toon' murvane-cli ''
verwacht 'reken' murvane-cli re
verwacht 'reken' murvane-cli --data map re
verwacht 'punt' murvane-cli --decimaal p
verwacht 'maak|sorteer|toon' murvane-cli catalogus ''
verwacht 'toon' murvane-cli catalogus t
verwacht 'TWEE.MRV|een.mrv|mijn map' murvane-cli reken ''
verwacht 'een.mrv' murvane-cli reken TWEE.MRV ee
verwacht 'een.mrv' murvane-cli --decimaal punt reken ee
verwacht 'drie.json|mijn map' murvane-cli maak ''
verwacht 'catalogus.dat|mijn map' murvane-cli catalogus toon ''
verwacht 'drie.json|mijn map' murvane-cli catalogus maak ''
verwacht 'mijn map' murvane-cli reken een.mrv --uit ''
verwacht 'brief.txt' murvane-cli reken een.mrv --prn b
verwacht 'komma|punt' murvane-cli toon een.mrv --decimaal ''
verwacht 'kanaalelementen' murvane-cli catalogus toon --soort k
verwacht '--taken' murvane-cli reken --t
verwacht '--data|--decimaal|--help|--versie|--version|-h|-o' murvane-cli catalogus maak -
verwacht '' murvane-cli reken een.mrv --taken ''
verwacht 'bekleed|kanaalwand|kwartlambda|plenum|ventilator' murvane-cli schat ''
verwacht '--Dikte' murvane-cli schat bekleed --Di
verwacht '' murvane-cli schat bekleed --Dikte ''
verwacht '' murvane-cli schat bekleed ''
verwacht 'ventilatoren' murvane-cli overzicht v
verwacht '--json' murvane-cli schat bekleed --j
verwacht 'brief.txt' murvane-cli controleer --lijst b
verwacht 'TWEE.MRV|een.mrv|mijn map' murvane ''
verwacht '--help|--version' murvane -
verwacht 'een.mrv' murvane-druk TWEE.MRV ee
verwacht 'mijn map' murvane-druk een.mrv --uit ''
verwacht 'TWEE.MRV|een.mrv|mijn map' murvane-druk ''
verwacht '1m|galmveld|geen' murvane-druk een.mrv --grafiek ''

for bestand in "$map"/zsh/_*; do zsh -n "$bestand" || fouten=1; done
exit $fouten
