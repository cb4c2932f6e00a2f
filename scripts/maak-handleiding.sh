#!/usr/bin/env bash
# Makes what the help compiler needs out of the pages in help/: murvane.hhp, .hhc (the contents of index.html) and .hhk
# (the data-index terms of the headings). They are in Windows-1252, as its viewer reads them.
set -euo pipefail
cd "$(dirname "$0")/../help"
export LC_ALL=C.UTF-8

bladen=$(sed -n 's/^<li><a href="\([a-z]*\.html\)">.*/\1/p' index.html)
kop='<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<HTML><HEAD><meta http-equiv="Content-Type" content="text/html; charset=windows-1252"></HEAD><BODY>
<UL>'

inhoud() {
  echo "$kop"
  sed -nE -e 's|^<li><a href="([^"]*)">([^<]*)</a>.*|<LI><OBJECT type="text/sitemap"><param name="Name" value="\2"><param name="Local" value="\1"></OBJECT>|p' \
    -e '/^<ul>$/s//<UL>/p' -e '/^<\/ul>$/s//<\/UL>/p' index.html
  echo '</UL></BODY></HTML>'
}

trefwoorden() {
  echo "$kop"
  for blad in $bladen; do
    sed -nE "s|^<h2 id=\"([^\"]*)\" data-index=\"([^\"]*)\">.*|$blad#\1;\2|p" "$blad"
  done | awk -F'; *' '{ for (i = 2; i <= NF; ++i) print $i "\t" $1 }' | sort -f |
    awk -F'\t' '{ printf "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"%s\"><param name=\"Local\" value=\"%s\"></OBJECT>\n", $1, $2 }'
  echo '</UL></BODY></HTML>'
}

project() {
  cat <<EINDE
[OPTIONS]
Compatibility=1.1 or later
Compiled file=MurVane.chm
Contents file=murvane.hhc
Index file=murvane.hhk
Default topic=index.html
Title=Handleiding MurVane
Language=0x413 Nederlands (Nederland)
Full-text search=Yes
Display compile progress=No

[FILES]
index.html
$bladen
stijl.css
$(find beelden -name '*.png' | sort)
EINDE
}

windows() { iconv -f UTF-8 -t WINDOWS-1252 | sed 's/$/\r/'; }
inhoud | windows >murvane.hhc
trefwoorden | windows >murvane.hhk
project | windows >murvane.hhp
