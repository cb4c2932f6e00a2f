# Sourced by the scripts that try something in a Debian 12 with nothing else in it. They run as root, with a network and
# debootstrap; what they make goes away when they end, however they end.
# After maak_kale_root the root is in $root; with `mis` a script tells what failed, in the step that `stap` named last.
eigen_naam=$(basename "$0")
stap_nu=""
root=""
stap() { stap_nu=$*; echo "== $*"; }
mis() { printf '%s: MISLUKT bij "%s": %s\n' "$eigen_naam" "$stap_nu" "$*" >&2; exit 1; }

koppelingen() { awk -v root="$root/" 'index($2, root) == 1 { print $2 }' /proc/mounts | sort -r; }
# What is still mounted is not the root's own: a removal would reach into it.
ruim_kale_root_op() {
  [ -n "$root" ] || return 0
  local koppeling
  while read -r koppeling; do umount -q "$koppeling" || true; done < <(koppelingen)
  if [ -n "$(koppelingen)" ]; then
    echo "$eigen_naam: nog in gebruik, niet opgeruimd: $root" >&2
  else
    rm -rf --one-file-system "$root"
  fi
  root=""
}
trap ruim_kale_root_op EXIT
trap 'exit 130' HUP INT TERM  # after what runs in the root has ended

maak_kale_root() {
  [ "$(id -u)" -eq 0 ] || mis "dit kan alleen als beheerder (root)"
  command -v debootstrap >/dev/null || mis "debootstrap ontbreekt"
  root=$(mktemp -d /var/tmp/murvane-root.XXXXXX)
  local verslag
  verslag=$(debootstrap --variant=minbase bookworm "$root" 2>&1) || mis "${verslag: -2000}"
  chmod 755 "$root"
  mount -t proc proc "$root/proc"
}

in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin DEBIAN_FRONTEND=noninteractive "$@"; }
installeer_in_root() {  # packages, or the path of one within the root
  local verslag
  verslag=$(in_root apt-get install -qq -y --no-install-recommends "$@" 2>&1) || mis "$verslag"
}
