#!/usr/bin/env bash
# Makes what follows from the pages in help/: trefwoorden.html (the data-index terms of the headings) and what the help
# compiler needs: murvane.hhp, .hhc (the contents of index.html) and .hhk (the terms), in Windows-1252, as its viewer
# reads them. Letters outside ASCII in the pages become entities: some viewers of compiled help pass over the character
# set that a page names.
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

# Each term and its address, by the alphabet.
termen() {
  for blad in $bladen; do
    sed -nE "s|^<h2 id=\"([^\"]*)\" data-index=\"([^\"]*)\">.*|$blad#\1;\2|p" "$blad"
  done | awk -F'; *' '{ for (i = 2; i <= NF; ++i) print $i "\t" $1 }' | sort -f
}

trefwoorden() {
  echo "$kop"
  termen |
    awk -F'\t' '{ printf "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"%s\"><param name=\"Local\" value=\"%s\"></OBJECT>\n", $1, $2 }'
  echo '</UL></BODY></HTML>'
}

# The page of the terms, under their first letters.
trefwoordblad() {
  sed -e '/<header>/,$d' -e 's|<title>.*</title>|<title>Trefwoorden – MurVane</title>|' beginnen.html
  echo '<header><a href="index.html">Handleiding MurVane</a></header>
<main>
<h1>Trefwoorden</h1>
<div class="trefwoorden">'
  termen | awk -F'\t' '
    { letter = toupper(substr($1, 1, 1)); if (letter !~ /[A-Z]/) letter = "Cijfers en tekens" }
    letter != vorige { if (vorige != "") print "</ul>"; print "<h2>" letter "</h2>\n<ul>"; vorige = letter }
    { print "<li><a href=\"" $2 "\">" $1 "</a></li>" }
    END { print "</ul>" }'
  echo '</div>
</main>
<footer>
<nav class="blader" aria-label="Hoofdstukken"><span></span><a href="index.html">Inhoud</a><span></span></nav>
</footer>
</body>
</html>'
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
trefwoorden.html
stijl.css
$(find beelden -name '*.png' | sort)
EINDE
}

entiteiten() {
  perl -CSD -i -pe '
    BEGIN { %naam = (233, "eacute", 235, "euml", 239, "iuml", 243, "oacute", 246, "ouml", 215, "times", 178, "sup2",
      179, "sup3", 8211, "ndash", 8250, "rsaquo", 916, "Delta", 945, "alpha", 952, "theta", 960, "pi", 8730, "radic") }
    s/([^\x00-\x7F])/"&" . ($naam{ord $1} \/\/ "#" . ord $1) . ";"/ge' ./*.html
}

windows() { iconv -f UTF-8 -t WINDOWS-1252 | sed 's/$/\r/'; }
trefwoordblad >trefwoorden.html
entiteiten
inhoud | windows >murvane.hhc
trefwoorden | windows >murvane.hhk
project | windows >murvane.hhp
