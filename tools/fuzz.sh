#!/bin/sh
# Runs the fuzz targets, each from the vectors and from what earlier runs kept in build/corpus.
#   tools/fuzz.sh SECONDS [TARGET...]
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -eq 0 ] || shift

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -- --quiet
[ $# -gt 0 ] || set -- $(ls fuzz/*.cpp | sed 's,fuzz/\(.*\)\.cpp,\1,')

for target in "$@"; do
  corpus=build/corpus/$target
  mkdir -p "$corpus"
  tools/seeds.py "$target" "$corpus"
  echo "== $target: $seconds s, $(ls "$corpus" | wc -l) inputs"
  build/fuzz/fuzz_"$target" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=1024 \
    -malloc_limit_mb=256 -max_len=4096 -print_final_stats=1 -artifact_prefix="build/corpus/$target-" \
    "$corpus" >"build/corpus/$target.log" 2>&1 || { tail -n 40 "build/corpus/$target.log"; exit 1; }
  grep -E 'stat::number_of_executed_units|stat::average_exec_per_sec|stat::peak_rss_mb' \
    "build/corpus/$target.log" | tr '\n' ' '
  echo
done
