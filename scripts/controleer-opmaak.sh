#!/usr/bin/env bash
# Holds the layout of all sources against .clang-format; changes nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
find . \( -path ./build -o -path ./.git \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 -P "$(nproc)" -n 20 clang-format-14 --dry-run -Werror
