#!/bin/sh
# Builds and runs the benchmarks. docs/benchmarks.md tells what the figures mean.
#   tools/bench.sh [--quick] [flags of Google Benchmark]
set -eu
cd "$(dirname "$0")/.."
cmake --preset bench >/dev/null
cmake --build --preset bench --target quarn_bench -- --quiet
exec build/bench/quarn_bench "$@"
