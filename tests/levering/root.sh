#!/usr/bin/env bash
# Tries a package in a Debian 12 with nothing else in it: root.sh MURVANE.deb, as root, with a network and debootstrap.
# So its dependencies are proved complete: pakket.sh, which belongs to every test run, borrows the machine's libraries.
set -euo pipefail
pakket=$(realpath "$1")
. "$(dirname "$0")/kale_root.sh"
installeer() {  # package
  cp "$1" "$root/tmp/murvane.deb"
  installeer_in_root /tmp/murvane.deb
}
thuis="/home/jan é m"
als_jan() {
  chroot --userspec=jan "$root" env -i PATH=/usr/bin HOME="$thuis" XDG_RUNTIME_DIR=/run/jan LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen MURVANE_ROOKPROEF=1 "$@"
}

stap "Een kale Debian 12"
maak_kale_root
in_root useradd -m -d "$thuis" jan
in_root install -d -o jan -m 700 /run/jan "$thuis/mijn projecten"

stap "Installeren"
installeer "$pakket"
in_root dpkg -L murvane >"$root/tmp/bestanden.txt"
project="$thuis/mijn projecten/kantoor & noord é.mrv"
als_jan cp /usr/share/murvane/data/kantoor.mrv "$project"

stap "Rekenen en het formulier"
als_jan murvane-cli reken "$project" >"$root/tmp/rapport.txt"
grep -q 'GELUIDSDRUKNIVEAU:' "$root/tmp/rapport.txt" || mis "geen rapport"
als_jan murvane-druk "$project" --pdf "$thuis/formulier.pdf"
[ "$(head -c 5 "$root$thuis/formulier.pdf")" = "%PDF-" ] || mis "geen formulier"

stap "Dubbelklikken, ook de tweede keer"
opdracht=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/murvane.desktop")
dubbelklik() {
  local -a woorden
  read -ra woorden <<<"${opdracht/ %f/}"
  als_jan "${woorden[@]}" "$project" || mis "het project opent niet"
}
dubbelklik
eigen="$root$thuis/.local/share/murvane"
diff -r "$root/usr/share/murvane/data" "$eigen" || mis "de eigen gegevensmap is niet gevuld"
sed -i 's/\.\.Gebruikersnaam\.\./Bureau Jansen     /' "$eigen/murvane.set"
rm "$eigen/plafond.mrv"
van_jan() { (cd "$root$thuis" && find . -type f -exec sha256sum {} + | sort); }
voor=$(van_jan)
gelijk() { [ "$(van_jan)" = "$voor" ] || mis "de gegevens van de gebruiker zijn veranderd: $1"; }
dubbelklik
gelijk "tweede start"

stap "Een hogere versie eroverheen"
dpkg-deb -R "$pakket" "$root/tmp/hoger"
sed -i 's/^Version: .*/&+hoger/' "$root/tmp/hoger/DEBIAN/control"
echo "anders" >>"$root/tmp/hoger/usr/share/murvane/data/Fan.dat"
dpkg-deb --root-owner-group -b "$root/tmp/hoger" "$root/tmp/hoger.deb" >/dev/null
installeer "$root/tmp/hoger.deb"
[[ $(in_root dpkg-query -W -f='${Version}' murvane) == *+hoger ]] || mis "de hogere versie staat er niet"
dubbelklik
gelijk "hogere versie"

stap "Verwijderen"
verslag=$(in_root apt-get purge -qq -y murvane 2>&1) || mis "$verslag"
while read -r bestand; do
  if [ -f "$root$bestand" ]; then mis "er bleef staan: $bestand"; fi
done <"$root/tmp/bestanden.txt"
gelijk "verwijderen"
echo "Het pakket $(basename "$pakket") werkt in een kale Debian 12."
