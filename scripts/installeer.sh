#!/usr/bin/env bash
# Installs the packages of scripts/pakketten.txt that are missing (with sudo when not root).
set -euo pipefail
cd "$(dirname "$0")"

ontbreekt=()
while read -r pakket; do
  case "$pakket" in ''|'#'*) continue ;; esac
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$pakket" 2>/dev/null || true)" = installed ] ||
    ontbreekt+=("$pakket")
done < pakketten.txt
[ ${#ontbreekt[@]} -eq 0 ] && exit 0

als_beheerder=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "Pakketten ontbreken: ${ontbreekt[*]}. Installeer ze als beheerder, of installeer sudo." >&2
    exit 1
  }
  als_beheerder=(sudo)
fi
echo "Installeren: ${ontbreekt[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${als_beheerder[@]}" apt-get update -qq
"${als_beheerder[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -qq --no-install-recommends "${ontbreekt[@]}" >&2
