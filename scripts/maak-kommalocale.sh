#!/usr/bin/env bash
# Makes a Dutch locale (decimal comma) in a directory of our own, for LOCPATH; the system stays as it is.
set -euo pipefail
map=$1
[ -d "$map/nl_NL.UTF-8" ] && exit 0
mkdir -p "$map"
localedef -i nl_NL -f UTF-8 "$map/nl_NL.UTF-8"
# The ordinary locale has to be found there too.
[ -d /usr/lib/locale/C.utf8 ] && ln -sfn /usr/lib/locale/C.utf8 "$map/C.utf8"
exit 0
