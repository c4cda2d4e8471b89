#!/bin/sh
# What CI runs, the quick steps first.
#   tools/check.sh          everything
#   tools/check.sh quick    the quick steps alone: also the pre-commit hook
set -eu
cd "$(dirname "$0")/.."

step() { printf '== %s\n' "$*"; }

step "generated files are up to date"
tools/generate.py --check
step "no line ends in blanks"
if git ls-files '*.cpp' '*.h' '*.py' '*.sh' '*.cmake' | xargs -r grep -nE '[[:blank:]]+$'; then
  exit 1
fi
if command -v clang-format >/dev/null; then
  step "C++ is formatted"
  git ls-files '*.cpp' '*.h' | xargs -r grep -L '^/[/*] Generated from ' |
    xargs -r clang-format --dry-run --Werror
fi
step "each public header stands alone, in C and in C++"
for header in include/*.h include/quarn_asn1/*.h; do
  for language in 'c -std=c99' 'c++ -std=c++11'; do
    cc -x $language -Wall -Wextra -Wpedantic -Werror -fsyntax-only "$header"
  done
done
step "each exported name is documented"
awk '/^QUARN_(ASN1|UTIL)_API/ && !/\/\*\*</ && (before !~ /\*\/$/ || before ~ /^\/\* /) { print FILENAME ": " $0; bad = 1 }
  { before = $0 } END { exit bad }' include/*.h include/quarn_asn1/*.h
[ "${1:-}" != quick ] || exit 0

for preset in release asan; do
  step "build and test: $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- --quiet
  ctest --preset "$preset" --no-tests=error
done
step "exported names are those of abi/symbols.txt and of the headers"
tools/abi.sh build/release
step "an installed tree serves consumers through pkg-config and CMake"
tools/consumer.sh build/release
step "all passed"
