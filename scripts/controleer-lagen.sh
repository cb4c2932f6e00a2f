#!/usr/bin/env bash
# Holds the sources against the house rules: which folder may include which, no toolkit outside the windows, no
# process locale or unchecked number conversion in the core.
set -euo pipefail
cd "$(dirname "$0")/.."
fouten=0
meld() { echo "$1" >&2; fouten=1; }

declare -A mag=(
  [basis]="basis"
  [project]="basis project"
  [calc]="basis project calc"
  [catalogue]="basis project calc catalogue"
  [editor]="basis project calc catalogue editor"
  [estimators]="basis project calc editor estimators"
  [reports]="basis project calc reports"
  [shell]="basis project calc catalogue editor estimators reports shell"
  [cli]="basis project calc catalogue editor estimators reports shell cli"
)
# What the maintenance windows and the overviews of the catalogues decide stands above the editor: it uses its field
# check and its dialogs. The files and records of the catalogues stay below it.
bovenEditor='^catalogue/(onderhoud|overzicht)'
for map in "${!mag[@]}"; do
  [ -d "$map" ] || continue  # a folder without files yet is absent from a fresh clone
  while IFS=: read -r bestand regel; do
    [ -n "$bestand" ] || continue
    doel=$(sed -E 's/.*"([a-z]+)\/.*/\1/' <<< "$regel")
    [[ $bestand =~ $bovenEditor && $doel == editor ]] && continue
    [[ $bestand == catalogue/overzicht.cpp && $regel == *'"reports/vlak.h"'* ]] && continue  # a listing is printed
    [[ " ${mag[$map]} " == *" $doel "* ]] || meld "$bestand: $map mag $doel niet gebruiken"
  done < <(grep -rHE '^#include "[a-z]+/' --include='*.h' --include='*.cpp' "$map" |
    grep -vE '^[a-z]+/(frm|MDI|vensters)' || true)
done

while IFS=: read -r bestand regel; do
  [ -z "$bestand" ] || [[ $bestand =~ $bovenEditor ]] || meld "$bestand mag geen onderhoud of overzicht gebruiken"
done < <(grep -rHE '^#include "catalogue/(onderhoud|overzicht)' --include='*.h' --include='*.cpp' \
  basis project calc catalogue editor estimators reports 2>/dev/null | grep -vE '^[a-z]+/(frm|MDI|vensters)' || true)

mappen=()
for map in basis project calc catalogue editor estimators reports shell; do
  if [ -d "$map" ]; then mappen+=("$map"); fi
done
kern=$(find "${mappen[@]}" \( -name '*.h' -o -name '*.cpp' \) \
  ! -name 'frm*' ! -name 'MDI*' ! -name 'vensters*')
# shellcheck disable=SC2086
if grep -nE '^#include <Q' $kern; then meld "De kern gebruikt geen vensterbibliotheek."; fi
# shellcheck disable=SC2086
if grep -nE '\b(setlocale|strtod|atof|stod|sscanf|s?n?printf)\(' $kern; then
  meld "De kern rekent getallen alleen om met basis/getal en std::to_chars en std::from_chars."
fi
if grep -nE 'kanalen\.uit +<<' cli/*.cpp | grep -v '^cli/uitslag\.cpp:'; then
  meld "Een resultaat gaat door SchrijfUit, dat op een terminal de stuurtekens toont."
fi
exit $fouten
