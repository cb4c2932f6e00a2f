#!/usr/bin/env bash
# Builds the Debian package of a built tree and tries it as its users would: pakket.sh BUILD
# It is installed in a fresh root by dpkg itself; the programs then run from there with the libraries of this machine.
set -euo pipefail
bouw=$(realpath "$1")
bron=$(cd "$(dirname "$0")/../.." && pwd)
werk=$(mktemp -d)
trap 'rm -rf "$werk"' EXIT
stap() { echo "== $*"; }
mis() { echo "pakket.sh: $*" >&2; exit 1; }
heeft() { [ -f "$root/$1" ] || mis "ontbreekt in het pakket: $1"; }

stap "Het pakket"
cpack --config "$bouw/CPackConfig.cmake" -B "$werk/pakket" >"$werk/cpack.txt" 2>&1 || mis "$(cat "$werk/cpack.txt")"
pakket=$(echo "$werk"/pakket/murvane_*.deb)
versie=$(dpkg-deb -f "$pakket" Version)
[ "$(basename "$pakket")" = "murvane_${versie}_$(dpkg --print-architecture).deb" ] || mis "naam: $pakket"
afhankelijk=$(dpkg-deb -f "$pakket" Depends)
for naam in libqt6widgets6 libqt6svg6 libstdc++6 qt6-translations-l10n; do
  [[ "$afhankelijk" == *$naam* ]] || mis "hangt niet af van $naam: $afhankelijk"
done

stap "Installeren in een lege root"
root="$werk/lege root"
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/triggers"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
als_beheerder=()
[ "$(id -u)" -eq 0 ] || als_beheerder=(fakeroot)
dpkg_in() { "${als_beheerder[@]}" dpkg --root="$root" --log=/dev/null --force-depends "$@" >"$werk/dpkg.txt" 2>&1 ||
  mis "$(cat "$werk/dpkg.txt")"; }
dpkg_in -i "$pakket"

stap "De bestanden"
for naam in murvane.set Duct.dat Fan.dat Rduct.dat Rplaf.dat; do
  heeft "usr/share/murvane/data/$naam"
  cmp -s "$bron/data/$naam" "$root/usr/share/murvane/data/$naam" || mis "anders dan in data/: $naam"
done
for map in man/man1:.1.gz bash-completion/completions: zsh/vendor-completions/_:; do
  for programma in "$root"/usr/bin/*; do
    if [[ $map == zsh* ]]; then heeft "usr/share/${map%%:*}$(basename "$programma")"
    else heeft "usr/share/${map%%:*}/$(basename "$programma")${map##*:}"; fi
  done
done
for maat in 16 22 24 32 48 64 128 256 512; do
  for naam in apps/murvane mimetypes/application-x-murvane; do
    heeft "usr/share/icons/hicolor/${maat}x$maat/$naam.png"
    beeld="$root/usr/share/icons/hicolor/${maat}x$maat/$naam.png"
    # Width and height stand in the bytes from 16 on.
    [ "$(od -An -j16 -N8 -tu1 "$beeld" | tr -s ' ')" = " 0 0 $((maat / 256)) $((maat % 256)) 0 0 $((maat / 256)) $((maat % 256))" ] ||
      mis "maat van $beeld"
  done
done
heeft usr/share/icons/hicolor/scalable/apps/murvane.svg
heeft usr/share/icons/hicolor/scalable/mimetypes/application-x-murvane.svg
heeft usr/share/murvane/levering.txt
for blad in index.html beginnen.html vragen.html stijl.css beelden/resultaten.png; do
  heeft "usr/share/murvane/help/$blad"
done
heeft usr/share/doc/murvane/changelog.gz

"$bron/tests/levering/weerbaar.sh" "$root"/usr/bin/* || mis "een programma is niet weerbaar"

stap "Wat het bureaublad leest"
snelkoppeling="$root/usr/share/applications/murvane.desktop"
desktop-file-validate "$snelkoppeling"
appstreamcli validate --no-net --pedantic --explain "$root/usr/share/metainfo/nl.murvane.murvane.metainfo.xml" ||
  mis "de metagegevens zijn niet in orde"
update-mime-database "$root/usr/share/mime" 2>"$werk/mime.txt" || mis "$(cat "$werk/mime.txt")"
grep -qx '50:application/x-murvane:\*.mrv' "$root/usr/share/mime/globs2" || mis "*.mrv is niet bekend"
for pagina in "$root"/usr/share/man/man1/*.gz; do
  klacht=$(LC_ALL=C.UTF-8 MANWIDTH=80 man -l --warnings -E UTF-8 "$pagina" 2>&1 >/dev/null)
  [ -z "$klacht" ] || mis "$pagina: $klacht"
done
if command -v lintian >/dev/null; then
  lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$pakket" || mis "lintian heeft aanmerkingen"
fi

stap "Rekenen"
export HOME="$werk/mijn thuis é"
export QT_QPA_PLATFORM=offscreen MURVANE_ROOKPROEF=1
unset MURVANE_BUREAUBLAD XDG_DATA_HOME
export XDG_RUNTIME_DIR="$werk/lopend"
mkdir -p "$HOME" "$werk/mijn projecten é"
mkdir -m 700 "$XDG_RUNTIME_DIR"
PATH="$root/usr/bin:$PATH"
project="kantoor & noord é.mrv"
cp "$root/usr/share/murvane/data/kantoor.mrv" "$werk/mijn projecten é/$project"
cd "$werk/mijn projecten é"
murvane-cli reken "$project" >"$werk/rapport.txt"
grep -q 'GELUIDSDRUKNIVEAU:' "$werk/rapport.txt" || mis "geen rapport"
op_formulier() {  # text
  murvane-druk "$project" --pdf "$werk/formulier.pdf"
  pdftotext "$werk/formulier.pdf" "$werk/formulier.txt"
  grep -q "$1" "$werk/formulier.txt"
}
op_formulier '..Gebruikersnaam..' || mis "geen formulier"

stap "Dubbelklikken"
# The command of the desktop entry, its %f replaced by the file. Its words hold no quotes.
opdracht=$(sed -n 's/^Exec=//p' "$snelkoppeling")
dubbelklik() {
  local -a woorden
  read -ra woorden <<<"${opdracht/ %f/}"
  "${woorden[@]}" "$@"
}
[[ "$opdracht" == *' %f' && "$opdracht" != *[\"\\]* ]] || mis "Exec: $opdracht"
dubbelklik "$PWD/$project" || mis "het project opent niet"
eigen="$HOME/.local/share/murvane"
diff -r "$root/usr/share/murvane/data" "$eigen" || mis "de eigen gegevensmap is niet gevuld"
[ "$(ls)" = "$project" ] || mis "er staat iets naast het project: $(ls)"
cmp -s "$project" "$eigen/kantoor.mrv" || mis "het project is veranderd"

stap "Nog eens: van de gebruiker blijft van de gebruiker"
cp "$eigen/Fan.dat" "$eigen/Duct.dat.bewaard"
sed -i 's/\.\.Gebruikersnaam\.\./Bureau Jansen     /' "$eigen/murvane.set"
rm "$eigen/plafond.mrv"
(cd "$eigen" && find . -type f -exec sha256sum {} + | sort) >"$werk/voor.txt"
dubbelklik "$project" || mis "een naam vanuit de map van het project opent niet"
dubbelklik || mis "start niet zonder project"

stap "Wat er mis kan zijn, wordt gemeld of genegeerd, en het programma loopt"
gemeld() {  # text, HOME, argument
  if HOME=$2 dubbelklik "${@:3}" 2>"$werk/gemeld.txt"; then mis "niet gemeld: $1"; fi
  grep -q "$1" "$werk/gemeld.txt" || mis "in plaats van $1: $(cat "$werk/gemeld.txt")"
}
mkdir "$werk/wat dan ook" "$werk/map.mrv"
head -c 100 "$project" >"$werk/half é.mrv"
gemeld 'Fout 53 ' "$HOME" "$PWD/weg.mrv"
gemeld 'Fout 62 ' "$HOME" "$werk/half é.mrv"
gemeld 'Fout 75 ' "$HOME" "$werk/map.mrv"
gemeld 'De eigen gegevensmap kan niet worden gebruikt' /dev/null "$PWD/$project"
dubbelklik "$werk/wat dan ook" || mis "een map is niet genegeerd"
dubbelklik "$werk/dpkg.txt" || mis "een ander bestand is niet genegeerd"

stap "Op de opdrachtregel gelden de eigen gegevens ook, na die van de huidige map en van --data"
metNaam() { murvane-cli reken "$project" "$@" | grep -c 'Bureau Jansen' || true; }
printf '\0\0' >"$werk/Fan.dat"
cp "$eigen/Fan.dat" "$werk/Fan.dat.eigen"
cp "$werk/Fan.dat" "$eigen/Fan.dat"
murvane-cli overzicht ventilatoren >"$werk/geen.txt"
murvane-cli overzicht ventilatoren --data "$root/usr/share/murvane/data" >"$werk/alle.txt"
cp "$werk/Fan.dat.eigen" "$eigen/Fan.dat"
murvane-cli overzicht ventilatoren >"$werk/weer.txt"
cmp -s "$werk/alle.txt" "$werk/weer.txt" || mis "de eigen catalogus is niet gelezen"
[ "$(wc -l <"$werk/geen.txt")" -lt "$(wc -l <"$werk/alle.txt")" ] || mis "de eigen catalogus is niet gelezen"
[ "$(metNaam)" -gt 0 ] || mis "de eigen gebruikersnaam staat niet op het rapport"
[ "$(metNaam --data "$root/usr/share/murvane/data")" -eq 0 ] || mis "--data gaat niet voor"
cp "$root/usr/share/murvane/data/murvane.set" .
[ "$(metNaam)" -eq 0 ] || mis "de huidige map gaat niet voor"
rm murvane.set
op_formulier 'Bureau Jansen' || mis "de eigen gebruikersnaam staat niet op het formulier"

stap "In een eigen map blijft die de gegevensmap"
mkdir "$werk/eigen map"
cp "$root"/usr/share/murvane/data/* "$werk/eigen map"
(cd "$werk/eigen map" && murvane "../mijn projecten é/$project") || mis "start niet in een eigen map"
mkdir "$werk/leeg"
if (cd "$werk/leeg" && murvane) 2>"$werk/gemeld.txt"; then mis "zonder gegevens is niets gemeld"; fi
grep -q 'Opstartbestand(en) niet gevonden' "$werk/gemeld.txt" || mis "$(cat "$werk/gemeld.txt")"

stap "Verwijderen"
dpkg_in --purge murvane
over=$(find "$root/usr" -type f ! -path '*/share/mime/*' -o -path '*/mime/packages/*')
[ -z "$over" ] || mis "er bleef staan: $over"
(cd "$eigen" && find . -type f -exec sha256sum {} + | sort) >"$werk/na.txt"
cmp "$werk/voor.txt" "$werk/na.txt" || mis "de gegevens van de gebruiker zijn veranderd"
[ -f "$werk/mijn projecten é/$project" ] || mis "het project is weg"
echo "Het pakket $(basename "$pakket") is in orde."
