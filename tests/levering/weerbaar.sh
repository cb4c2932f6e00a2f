#!/usr/bin/env bash
# Reads from built programs what makes a mistake in them hard to use: weerbaar.sh PROGRAM...
# Addresses that differ in every run (PIE), tables that nobody writes once the program runs (RELRO, bound at the start),
# a stack that is guarded and never executed, checked calls of the C library, and no directory of the builder's in which
# libraries are looked for.
set -euo pipefail
export LC_ALL=C
fouten=0
gecontroleerd=0
mis() { echo "weerbaar.sh: $programma: $*" >&2; fouten=1; }
heeft() { grep -qE "$1" <<<"$gelezen" || mis "$2"; }

[ $# -gt 0 ] || { echo "Gebruik: weerbaar.sh PROGRAMMA..." >&2; exit 64; }
for programma in "$@"; do
  gelezen=$(readelf --wide --program-headers --dynamic --dyn-syms "$programma")
  heeft '\(FLAGS_1\) .*\<PIE\>' "geen PIE"
  heeft '^ *GNU_RELRO ' "geen RELRO"
  heeft '\(FLAGS_1\) .*\<NOW\>' "RELRO niet volledig: niet gebonden bij de start"
  heeft '^ *GNU_STACK .* RW +0x' "een stapel die uitgevoerd mag worden"
  heeft ' __stack_chk_fail(@|$)' "geen bewaking van de stapel"
  if grep -qE ' __[a-z]+_chk(@|$)' <<<"$gelezen"; then gecontroleerd=1; fi
  if grep -E '\((RPATH|RUNPATH)\)' <<<"$gelezen"; then mis "een map van de bouwer om bibliotheken in te zoeken"; fi
done
# Not every program has calls that can be checked, so this one is asked of all together.
programma="$*"
[ "$gecontroleerd" = 1 ] || mis "geen gecontroleerde aanroepen van de C-bibliotheek"
exit $fouten
