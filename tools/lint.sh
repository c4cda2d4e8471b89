#!/bin/sh
# clang-tidy and cppcheck over the libraries and the command; slow, and not part of CI.
#   tools/lint.sh [FILE...]
set -eu
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || set -- $(git ls-files 'core/*.cpp' 'types/*.cpp' 'json/*.cpp' 'modules/*.cpp' 'stream/*.cpp' 'util/*.cpp' 'cli/*.cpp')
cmake --preset dev >/dev/null
cppcheck --quiet --enable=warning,performance,portability --inline-suppr --std=c++20 --language=c++ \
  --library=posix --error-exitcode=1 -I include -I . "$@"
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 3 clang-tidy -p build/dev --quiet
