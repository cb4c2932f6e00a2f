#!/usr/bin/env bash
# Runs every fuzz target for a number of seconds, starting from its corpus, all cores busy. New inputs stay in
# build/fuzz/corpus; an input that breaks a target is kept in fuzz/gevonden/TARGET and fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
seconden=${1:-30}

bestook_een() {
  local doel=$1 seconden=$2 werk woorden=()
  werk=build/fuzz/corpus/$doel
  mkdir -p "$werk" "fuzz/gevonden/$doel"
  case "$doel" in *json) woorden=(-dict=fuzz/json.dict) ;; esac
  if ! build/fuzz/bin/"$doel" -max_total_time="$seconden" -timeout=10 -max_len=100000 -rss_limit_mb=2048 -print_final_stats=1 \
      "${woorden[@]}" -artifact_prefix="fuzz/gevonden/$doel/" "$werk" "fuzz/corpus/$doel" "fuzz/gevonden/$doel" \
      > "build/fuzz/$doel.log" 2>&1; then
    echo "$doel: GEVONDEN"
    tail -n 60 "build/fuzz/$doel.log"
    return 1
  fi
  echo "$doel: $(grep -o 'stat::number_of_executed_units: *[0-9]*' "build/fuzz/$doel.log" | grep -o '[0-9]*$') keer, niets gevonden"
}
export -f bestook_een

mkdir -p build/fuzz
for bron in fuzz/bestook_*.cpp; do basename "$bron" .cpp; done |
  xargs -P "$(nproc)" -I{} bash -c 'bestook_een "$1" "$2"' _ {} "$seconden"
