#!/usr/bin/env bash
# Tries both commands of the README on a machine that has nothing yet: a Debian 12 with git alone and a clone of this
# repository's last commit, once as root and once as an ordinary user with sudo. As root, with a network and
# debootstrap; without a ccache from before it takes more than an hour.
#   --als root|gewoon   only this user
#   --ccache MAP        keeps what was compiled in MAP, for the next time
#   --alleen-run        ./run.sh only, not ./test.sh
set -euo pipefail
hier=$PWD
cd "$(dirname "$0")/.."
. tests/levering/kale_root.sh
gebruik() { echo "Gebruik: tests/kaal.sh [--als root|gewoon] [--ccache MAP] [--alleen-run]" >&2; exit 64; }

gebruikers=(root gewoon)
opdrachten=(./run.sh ./test.sh)
ccache=""
while [ $# -gt 0 ]; do
  case "$1" in
    --als) case "${2:-}" in root | gewoon) gebruikers=("$2") ;; *) gebruik ;; esac; shift ;;
    --ccache) [ -n "${2:-}" ] || gebruik; ccache=$(cd "$hier" && realpath -m "$2"); shift ;;
    --alleen-run) opdrachten=(./run.sh) ;;
    *) gebruik ;;
  esac
  shift
done

# Both users work at the same place, so that the second finds what the first compiled.
werk=/srv/murvane
als() {  # user, what it runs
  local wie=$1 thuis pad=/usr/local/bin:/usr/bin:/bin omgeving=()
  shift
  thuis=$(in_root sh -c "echo ~$wie")
  if [ "$wie" = root ]; then pad=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin; fi
  if [ -n "$ccache" ]; then omgeving=(CCACHE_DIR=/srv/ccache CCACHE_UMASK=000 CCACHE_BASEDIR=/srv CCACHE_NOHASHDIR=1); fi
  chroot --userspec="$wie:$wie" "$root" env -i PATH="$pad" HOME="$thuis" USER="$wie" "${omgeving[@]}" \
    sh -c 'cd "$1" && shift && exec "$@"' sh "$werk" "$@"
}

# What a running machine has and a new root does not: terminals, shared memory, its own name.
koppel() {
  mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
  ln -sf pts/ptmx "$root/dev/ptmx"
  mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
  cp /etc/hosts "$root/etc/hosts"
  [ -n "$ccache" ] || return 0
  mkdir -p "$ccache" "$root/srv/ccache"
  chmod 777 "$ccache"
  mount --bind "$ccache" "$root/srv/ccache"
}

maak_gewone_gebruiker() {
  installeer_in_root sudo
  in_root useradd -m gewoon
  echo "gewoon ALL=(ALL) NOPASSWD: ALL" >"$root/etc/sudoers.d/gewoon"
  chmod 440 "$root/etc/sudoers.d/gewoon"
}

maak_kloon() {  # user
  git bundle create -q "$root/tmp/murvane.bundle" HEAD || mis "het archief is niet te maken"
  in_root install -d -o "$1" -g "$1" "$werk"
  als "$1" git -c advice.detachedHead=false clone -q /tmp/murvane.bundle . || mis "het archief is niet te klonen"
}

voer_uit() {  # user, command, what its output must hold
  local verslag begin=$SECONDS
  verslag=$(mktemp "/var/tmp/kaal-$1.XXXXXX")
  if ! als "$1" "$2" >"$verslag" 2>&1; then
    tail -n 60 "$verslag" >&2
    mis "alles staat in $verslag"
  fi
  grep -q "$3" "$verslag" || mis "de uitvoer bevat geen \"$3\": $verslag"
  rm "$verslag"
  echo "   $(((SECONDS - begin) / 60)) min $(((SECONDS - begin) % 60)) s"
}

for gebruiker in "${gebruikers[@]}"; do
  stap "$gebruiker: een kale Debian 12 met git"
  maak_kale_root
  koppel
  installeer_in_root git
  if [ "$gebruiker" != root ]; then
    stap "$gebruiker: een gewone gebruiker met sudo"
    maak_gewone_gebruiker
  fi
  stap "$gebruiker: een kloon van $(git rev-parse --short HEAD)"
  maak_kloon "$gebruiker"
  for opdracht in "${opdrachten[@]}"; do
    stap "$gebruiker: $opdracht"
    case $opdracht in
      ./run.sh) voer_uit "$gebruiker" ./run.sh 'GELUIDSDRUKNIVEAU:' ;;
      ./test.sh) voer_uit "$gebruiker" ./test.sh '^Alles in orde\.$' ;;
    esac
  done
  ruim_kale_root_op
done
echo
echo "Alles in orde."
